// The style in which all windows are drawn.
#pragma once

#include <QProxyStyle>

namespace tav {

// Qt's own style with fewer ornaments: no pictures on the buttons of dialogs, plain signs beside
// messages.
class ProgramStyle : public QProxyStyle {
  public:
    ProgramStyle();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

}  // namespace tav
