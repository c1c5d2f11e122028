// The screen walks of the client-directory check: scenario steps that open every screen, tab and page.
#pragma once

#include <string>
#include <vector>

struct LintWalk {
    std::string name;  ///< the screen group the findings are reported under
    std::string steps; ///< scenario lines; "LANG" stands for the language index being checked
};

/// Every walk, login scene first, then the creation scene. Each creates the simulator and destroys it.
const std::vector<LintWalk>& LintWalks();
