# Writes the contact sheet of the demo: one HTML page with every picture the demo scenarios take, each with the
# scenario steps since the scenario's previous picture, so that a person sees the whole front end at once.
# Variables: DEMO (the folder of the demo scenarios), OUT (the HTML file), PER_SCENARIO (pictures lie in
# NAME/pictures/ beside the page, as the demo tests leave them; otherwise all beside the page, as scripts/demo
# leaves them).
function(html_escape text out)
    string(REPLACE "&" "&amp;" text "${text}")
    string(REPLACE "<" "&lt;" text "${text}")
    string(REPLACE ">" "&gt;" text "${text}")
    string(REPLACE "\"" "&quot;" text "${text}")
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

file(GLOB scenarios "${DEMO}/*.scn")
list(SORT scenarios)
set(body "")
foreach(scenario IN LISTS scenarios)
    get_filename_component(name "${scenario}" NAME_WE)
    # NOTE: a ";" would split a line into list items and a "[" could join them; both travel as marks and are
    # put back in the page.
    file(READ "${scenario}" text)
    string(REPLACE ";" "@SEMICOLON@" text "${text}")
    string(REPLACE "[" "@OPEN@" text "${text}")
    string(REPLACE "\r" "" text "${text}")
    string(REPLACE "\n" ";" lines "${text}")
    set(about "")
    set(steps "")
    set(in_header TRUE)
    set(figures "")
    foreach(line IN LISTS lines)
        if(line MATCHES "^# ?(.*)$")
            set(comment "${CMAKE_MATCH_1}")
            if(in_header AND NOT comment MATCHES "^client")
                string(APPEND about "${comment} ")
            endif()
            continue()
        endif()
        # The password and the security tokens are never shown, not even the demo's: typed text may be either.
        if(line MATCHES "^set (VAR_LOGINPASS|VAR_LOGINHELMSAFE|VAR_LOGINHELMSAFE_WEIXIN|VAR_LOGINHELMSAFE_WARD) ")
            set(line "set ${CMAKE_MATCH_1} ******")
        elseif(line MATCHES "^char ")
            set(line "char ******")
        endif()
        set(in_header FALSE)
        if(line MATCHES "^shot (.+)$")
            set(picture "${CMAKE_MATCH_1}")
            if(PER_SCENARIO)
                set(src "${name}/pictures/${picture}")
            else()
                set(src "${picture}")
            endif()
            html_escape("${src}" src)
            html_escape("${picture}" caption)
            html_escape("${steps}" shown_steps)
            string(APPEND figures "<figure><a href=\"${src}\"><img src=\"${src}\" alt=\"${caption}\"></a>"
                                  "<figcaption><b>${caption}</b><pre>${shown_steps}shot ${caption}</pre></figcaption></figure>\n")
            set(steps "")
        elseif(NOT line STREQUAL "")
            string(APPEND steps "${line}\n")
        endif()
    endforeach()
    if(figures)
        html_escape("${about}" about)
        string(APPEND body "<section><h2>${name}</h2><p>${about}</p>\n${figures}</section>\n")
    endif()
endforeach()

string(REPLACE "@SEMICOLON@" ";" body "${body}")
string(REPLACE "@OPEN@" "[" body "${body}")
file(WRITE "${OUT}" "<!DOCTYPE html>
<html lang=\"en\"><head><meta charset=\"utf-8\"><title>flashsim demo: every screen</title>
<style>
body { font-family: sans-serif; background: #1b1d22; color: #ddd; margin: 1em 2em; }
figure { display: inline-block; vertical-align: top; margin: 0 1em 1.5em 0; width: 520px; }
img { width: 512px; border: 1px solid #555; }
pre { font-size: 11px; white-space: pre-wrap; color: #aab; max-height: 14em; overflow: auto; }
h2 { border-bottom: 1px solid #444; }
</style></head><body>
<h1>flashsim demo: every screen</h1>
<p>Each picture with the scenario steps that led to it from the scenario's previous picture
(tools/flashsim/demo/NAME.scn).</p>
${body}</body></html>
")
