#include "powerview.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

constexpr int Full = 100; // per cent

int levelOf(const PowerStatus& status)
{
    if (status.fullCap == 0)
        return 0;
    const qint64 level = qint64(status.remainCap) * Full / status.fullCap;
    // A broken record may be far below nothing.
    return static_cast<int>(std::clamp<qint64>(level, std::numeric_limits<int>::min(), Full));
}

bool isIdleAndFull(const PowerStatus& status)
{
    return !status.bIsBat && status.remainCap == status.fullCap && status.remainTime < 1
        && status.toFullTime < 1;
}

QString timeText(int hours, const QString& hourWord, int minutes, const QString& minuteWord)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(QString::number(hours), hourWord, QString::number(minutes), minuteWord);
}

} // namespace

PowerView powerView(const PowerStatus& status)
{
    PowerView view;
    view.state = QT_TRANSLATE_NOOP("CPowerMonitor", "Fully Charged");
    view.level = levelOf(status);
    if (isIdleAndFull(status))
        return view;
    view.bIsLevelShown = true;
    view.bIsTimeShown = status.bIsBat;
    view.battery = CResourceMan::getSystemBatteryStatus(status.remainCap, status.fullCap, status.bIsBat);
    if (status.bIsBat)
        view.state = QT_TRANSLATE_NOOP("CPowerMonitor", "Discharging...");
    else if (view.level < Full)
        view.state = QT_TRANSLATE_NOOP("CPowerMonitor", "Charging...");
    return view;
}

QString remainTimeText(int minutes)
{
    const QString hour = QCoreApplication::translate("CPowerMonitor", "hour");
    const QString hours = QCoreApplication::translate("CPowerMonitor", "hours");
    const QString min = QCoreApplication::translate("CPowerMonitor", "min");
    const QString mins = QCoreApplication::translate("CPowerMonitor", "mins");

    // Four tests on their own, of which the last that applies wins: a negative time is told as it is, so that
    // a gauge that reports nonsense is seen. A full hour says "0 min", several hours "0 mins"; both are
    // meant.
    QString text;
    if (minutes < 0)
        text = QStringLiteral(" ");
    if (minutes < 60)
        text = timeText(0, hour, minutes, minutes > 1 ? mins : min);
    if (minutes == 60)
        text = timeText(1, hour, 0, min);
    if (minutes > 60)
        text = timeText(
            minutes / 60, minutes / 60 == 1 ? hour : hours, minutes % 60, minutes % 60 == 1 ? min : mins);
    return text;
}
