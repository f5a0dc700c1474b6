// Which page of the guide belongs to what is on the screen, and where the guide lies: as HTML in the folder guide/
// beside the program.
#pragma once

#include "shell/ButtonTable.h"

#include <span>

class ApplicationFolder;

struct GuidePage
{
    PanelName panel;
    const char* page; // without folder and ending: docs/guide/<page>.md becomes guide/<page>.html
};

// One row for each panel.
std::span<const GuidePage> guidePages();

// The page that tells of the panel; of the preview; and the first page.
const char* guidePageOf(PanelName panel);
inline constexpr const char* guidePageOfPreview = "first-shop";
inline constexpr const char* firstGuidePage = "index";

// The path of that page's file, whether it is there or not.
QString guideFile(const ApplicationFolder& folder, const char* page);
