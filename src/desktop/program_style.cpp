#include "desktop/program_style.h"

#include "desktop/pictures.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tav {
namespace {

struct Drawing {
    QStyle::StandardPixmap Icon;
    std::string_view Name;
};

// The pictures of messages, file dialogs and lists of folders that are the program's own.
constexpr std::array kDrawings = {
    Drawing{QStyle::SP_MessageBoxInformation, "Information"},
    Drawing{QStyle::SP_MessageBoxQuestion, "Question"},
    Drawing{QStyle::SP_MessageBoxWarning, "Exclamation"},
    Drawing{QStyle::SP_MessageBoxCritical, "Critical"},
    Drawing{QStyle::SP_DirIcon, "Folder"},
    Drawing{QStyle::SP_DirHomeIcon, "Home"},
    Drawing{QStyle::SP_DirOpenIcon, "OpenFolder"},
    Drawing{QStyle::SP_FileDialogToParent, "ParentFolder"},
    Drawing{QStyle::SP_FileDialogBack, "Back"},
    Drawing{QStyle::SP_FileDialogNewFolder, "NewFolder"},
    Drawing{QStyle::SP_FileDialogDetailedView, "Details"},
    Drawing{QStyle::SP_FileDialogListView, "List"},
    Drawing{QStyle::SP_ArrowBack, "Back"},
    Drawing{QStyle::SP_ArrowForward, "Forward"},
    Drawing{QStyle::SP_DriveHDIcon, "Drive"},
    Drawing{QStyle::SP_ComputerIcon, "Computer"},
    Drawing{QStyle::SP_FileIcon, "File"},
};

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_EtchDisabledText: return 0;
        default: return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    const auto* const drawing =
        std::find_if(kDrawings.begin(), kDrawings.end(),
                     [icon](const Drawing& entry) { return entry.Icon == icon; });
    return drawing == kDrawings.end() ? QProxyStyle::standardIcon(icon, option, widget)
                                      : IconOf(drawing->Name);
}

}  // namespace tav
