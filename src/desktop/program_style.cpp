#include "desktop/program_style.h"

#include "desktop/pictures.h"

namespace tav {

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
        case SH_EtchDisabledText: return 0;
        default: return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
    switch (icon) {
        case SP_MessageBoxInformation: return IconOf("Information");
        case SP_MessageBoxQuestion: return IconOf("Question");
        case SP_MessageBoxWarning: return IconOf("Exclamation");
        case SP_MessageBoxCritical: return IconOf("Critical");
        default: return QProxyStyle::standardIcon(icon, option, widget);
    }
}

}  // namespace tav
