# Assembles the Chinese sample client directory: res/ with res/zh/ laid over it (the Chinese string table and
# INI files) and the layout's texts translated by res/zh/layout-texts.txt. A language is a client directory, as
# the game client ships one per language.
# Usage: cmake -DSOURCE=<project> -DOUT=<directory> -P scripts/assemble-zh-client.cmake
if(NOT SOURCE OR NOT OUT)
    message(FATAL_ERROR "usage: cmake -DSOURCE=<project> -DOUT=<directory> -P assemble-zh-client.cmake")
endif()
set(res "${SOURCE}/res")
file(REMOVE_RECURSE "${OUT}")
file(MAKE_DIRECTORY "${OUT}")
file(COPY "${res}/" DESTINATION "${OUT}" PATTERN "zh" EXCLUDE)
file(COPY "${res}/zh/" DESTINATION "${OUT}" PATTERN "layout-texts.txt" EXCLUDE)

file(READ "${OUT}/FlashGui.ini" layout)
file(STRINGS "${res}/zh/layout-texts.txt" pairs ENCODING UTF-8)
foreach(pair IN LISTS pairs)
    if(pair MATCHES "^#" OR NOT pair MATCHES "^(.*[^ ]) += +(.+)$")
        continue()
    endif()
    string(REPLACE "\nText = ${CMAKE_MATCH_1}\n" "\nText = ${CMAKE_MATCH_2}\n" layout "${layout}")
endforeach()
file(WRITE "${OUT}/FlashGui.ini" "${layout}")
