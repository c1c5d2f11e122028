// Text dumps of an auto text's layout, and the case files the layout tests read.
#pragma once

#include <string>

#include "controls/SimAutoText.h"

namespace autotext {

/// One layout case: the parameters from the file's first line and the text after it.
struct Case {
    int width = 300;
    int font = 14;
    int spacing = 0;
    int align = 0;
    bool wrap = true;
    bool tags = true;
    unsigned strres = 0;
    std::string language; ///< host language name ("English" breaks at spaces)
    std::string text;
};

/// Parses a case file: a first line "# key=value ..." (width, font, spacing, align, wrap, tags, strres,
/// language), then the text; the file's last line feed is not part of the text.
Case ParseCase(const std::string& content);
/// Lays the case out.
void LayOut(const Case& c, CSimAutoText& text);
/// "size WxH", then per line "line I x=.. y=.. w=.. h=.." and its runs "  run x=.. dy=.. font=.. color=..
/// style=.. \"text\"" (text escaped), runs of unknown lines at the end.
std::string Dump(const CSimAutoText& text);

} // namespace autotext
