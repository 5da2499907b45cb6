#include "desktop/user_locale.h"

#include "core/number_text.h"
#include "reports/date_text.h"

#include <QDateTime>

namespace tav {
namespace {

// The clock's hours, minutes and seconds without the name of its zone.
QString LongTimeFormat(const QLocale& locale) {
    QString format = locale.timeFormat(QLocale::LongFormat);
    return format.remove(QLatin1Char('t')).remove(QStringLiteral("()")).trimmed();
}

QString Written(const QLocale& locale, const QDateTime& time, DateForm form) {
    switch (form) {
        case DateForm::General:
            return locale.toString(time.date(), QLocale::ShortFormat) + QLatin1Char(' ') +
                   locale.toString(time.time(), LongTimeFormat(locale));
        case DateForm::LongDate: return locale.toString(time.date(), QLocale::LongFormat);
        case DateForm::MediumDate: return locale.toString(time.date(), QStringLiteral("dd-MMM-yy"));
        case DateForm::LongTime: return locale.toString(time.time(), LongTimeFormat(locale));
        case DateForm::MediumTime: return locale.toString(time.time(), QLocale::ShortFormat);
        case DateForm::ShortTime: return locale.toString(time.time(), QStringLiteral("HH:mm"));
    }
    return {};
}

// The program's time is the wall's: no zone may shift it.
QDateTime WallTime(DateTime time) {
    return QDateTime::fromSecsSinceEpoch(time.time_since_epoch().count(), Qt::UTC);
}

}  // namespace

void TakeLocale(const QLocale& locale) {
    const QString point = locale.decimalPoint();
    SetDecimalSeparator(point == QLatin1String(",") ? ',' : '.');
    const bool own = locale.language() == QLocale::C || locale.territory() == QLocale::UnitedStates;
    if (own) {
        SetDateWriter({});
        return;
    }
    SetDateWriter([locale](DateTime time, DateForm form) {
        return Written(locale, WallTime(time), form).toStdString();
    });
}

}  // namespace tav
