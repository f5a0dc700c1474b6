#include "look/StandardIcons.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

// A static library's resources must be registered by hand, in a function outside all namespaces.
static void takeStandardIcons()
{
    Q_INIT_RESOURCE(look);
}

namespace {

struct IconRow
{
    QStyle::StandardPixmap picture;
    const char* name; // in look/icons, without the ending
};

constexpr std::array standardIcons = {
    IconRow{QStyle::SP_MessageBoxInformation, "information"},
    IconRow{QStyle::SP_MessageBoxQuestion, "question"},
    IconRow{QStyle::SP_MessageBoxWarning, "warning"},
    IconRow{QStyle::SP_MessageBoxCritical, "critical"},

    IconRow{QStyle::SP_ArrowBack, "back"},
    IconRow{QStyle::SP_ArrowForward, "forward"},
    IconRow{QStyle::SP_FileDialogToParent, "up"},
    IconRow{QStyle::SP_FileDialogNewFolder, "folder_new"},
    IconRow{QStyle::SP_FileDialogListView, "view_list"},
    IconRow{QStyle::SP_FileDialogDetailedView, "view_details"},

    IconRow{QStyle::SP_DirIcon, "folder"},
    IconRow{QStyle::SP_DirOpenIcon, "folder"},
    IconRow{QStyle::SP_DirClosedIcon, "folder"},
    IconRow{QStyle::SP_DirLinkIcon, "folder"},
    IconRow{QStyle::SP_DirHomeIcon, "folder"},
    IconRow{QStyle::SP_FileIcon, "file"},
    IconRow{QStyle::SP_FileLinkIcon, "file"},
    IconRow{QStyle::SP_ComputerIcon, "computer"},
    IconRow{QStyle::SP_DesktopIcon, "computer"},
    IconRow{QStyle::SP_DriveHDIcon, "drive"},
    IconRow{QStyle::SP_DriveNetIcon, "drive"},
};

} // namespace

QIcon standardIconOf(QStyle::StandardPixmap picture)
{
    const auto* row = std::find_if(standardIcons.begin(), standardIcons.end(),
                                   [picture](const IconRow& each) { return each.picture == picture; });
    if (row == standardIcons.end()) {
        return {};
    }
    takeStandardIcons();
    return QIcon(u":/look/%1.svg"_s.arg(QLatin1StringView(row->name)));
}
