#include "backlightgroup.h"

#include "widgets/checkbox/checkbox.h"
#include "widgets/label/label.h"
#include "widgets/parmcombobox/parmcombobox.h"
#include "widgets/progressbar/progressbar.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QMouseEvent>

#include <algorithm>

namespace {

constexpr int Times[] = {10, 15, 20, 30, 45, 60, 120, 180, 300, 600}; // seconds
constexpr int BrightnessStep = 5;
constexpr int BrightnessMax = 100;

/** The times on offer, in order; the stored one is among them whatever it is. */
QVector<int> timesWith(int stored)
{
    QVector<int> times(std::begin(Times), std::end(Times));
    const auto place = std::lower_bound(times.begin(), times.end(), stored);
    if (place == times.end() || *place != stored)
        times.insert(place, stored);
    return times;
}

QString timeText(int seconds)
{
    if (seconds < 60)
        return CBacklightGroup::tr("%1 s", "seconds").arg(seconds);
    const QString minutes = CBacklightGroup::tr("%1 min", "minutes").arg(seconds / 60);
    return seconds % 60 == 0 ? minutes : minutes + QLatin1Char(' ') + timeText(seconds % 60);
}

/** The next multiple of the step in a direction (-1 or 1), on the scale. */
int steppedBrightness(int value, int direction)
{
    const int inside = qBound(0, value, BrightnessMax);
    const int below = direction > 0 ? inside : inside + BrightnessStep - 1;
    return qBound(0, (below / BrightnessStep + direction) * BrightnessStep, BrightnessMax);
}

CSystemSettings* store()
{
    return CSystemSettings::globalSettings();
}

} // namespace

CBacklightGroup::CBacklightGroup(const Source& source, QWidget* parent)
    : CWidget(parent)
    , m_source(source)
    , m_title(new CLabel(this))
    , m_enabled(new CCheckBox(this))
    , m_time(new CParmComboBox(QString(), {}, QString(), this))
    , m_brightnessName(new CLabel(this))
    , m_brightnessValue(new CLabel(this))
    , m_darker(new CPushButton(QStringLiteral("\u2212"), this))
    , m_brightness(new CProgressBar(this))
    , m_brighter(new CPushButton(QStringLiteral("+"), this))
{
    setBackgroundColor(CWidgetStyle::ColorToolBox);
    m_title->setBold(true);
    m_title->setTextSize(18);
    m_enabled->setSkinEnabled(true);
    m_brightnessValue->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_brightnessValue->setObjectName(QStringLiteral("brightness"));
    m_brightness->setRange(0, BrightnessMax);
    m_darker->setObjectName(QStringLiteral("darker"));
    m_brighter->setObjectName(QStringLiteral("brighter"));
    for (CPushButton* button : {m_darker, m_brighter}) {
        button->setTextSize(26);
        button->setAutoRepeat(true);
    }
    placeControls();
    translate();
    showEnabled();

    // Only what the user does is written: following a change made elsewhere must not write it again.
    connect(m_enabled, &CCheckBox::clicked, this, [this](bool on) { write(m_source.enabled, on); });
    connect(m_time, &CParmComboBox::activated, this, [this](int index) {
        if (index >= 0 && index < m_times.size())
            write(m_source.time, m_times.at(index));
    });
    connect(m_darker, &CPushButton::clicked, this, [this] { stepBrightness(-1); });
    connect(m_brighter, &CPushButton::clicked, this, [this] { stepBrightness(1); });
    connect(store(), &CSystemSettings::attributeChanged, this, &CBacklightGroup::follow);
}

void CBacklightGroup::translate()
{
    CWidget::translate();
    m_title->setText(tr(m_source.title));
    m_enabled->setText(tr("Switch off the backlight after", "a time that stands beside it"));
    m_brightnessName->setText(tr("Brightness"));
    m_times.clear(); // the items are texts too
    showTime();
    showBrightness();
}

void CBacklightGroup::placeControls()
{
    // Captions and values stand where those of the settings page do.
    m_title->setGeometry(12, 8, 578, 36);
    m_enabled->setGeometry(12, 50, 280, 52);
    m_time->setGeometry(304, 50, 298, 52);
    m_brightnessName->setGeometry(12, 116, 208, 52);
    m_brightnessValue->setGeometry(220, 116, 72, 52);
    m_darker->setGeometry(304, 116, 56, 52);
    m_brightness->setGeometry(370, 130, 166, 24);
    m_brightness->setAttribute(Qt::WA_TransparentForMouseEvents); // a touch above or below it counts too
    m_brighter->setGeometry(546, 116, 56, 52);
}

QRect CBacklightGroup::levelArea() const
{
    return QRect(m_darker->geometry().right() + 1, m_darker->y(),
        m_brighter->x() - m_darker->geometry().right() - 1, m_darker->height());
}

void CBacklightGroup::mousePressEvent(QMouseEvent* event)
{
    m_isLevelHeld = levelArea().contains(event->pos());
    if (m_isLevelHeld)
        setLevelAt(event->x());
    else
        CWidget::mousePressEvent(event);
}

void CBacklightGroup::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isLevelHeld)
        setLevelAt(event->x());
}

void CBacklightGroup::setLevelAt(int x)
{
    const QRect bar = m_brightness->geometry();
    const double part = qBound(0.0, double(x - bar.left()) / (bar.width() - 1), 1.0);
    const int level = qRound(part * BrightnessMax / BrightnessStep) * BrightnessStep;
    write(m_source.brightness, level);
}

void CBacklightGroup::write(CSystemSettings::SystemAttribute attribute, const QVariant& value)
{
    // What an earlier process stored is text; compared as what is to be written.
    QVariant stored = store()->getAttribute(attribute);
    if (stored.convert(value.userType()) && stored == value)
        return;
    store()->setAttribute(attribute, value, true);
    // Defaults do not reach the block. Other processes must not find a new value beside fields that nobody
    // has written: a backlight that goes off after 0 s.
    for (const CSystemSettings::SystemAttribute other :
        {m_source.enabled, m_source.time, m_source.brightness}) {
        if (other != attribute)
            store()->setAttribute(other, store()->getAttribute(other), true);
    }
    store()->setAttribute(m_source.changed, true, true);
}

void CBacklightGroup::stepBrightness(int direction)
{
    const int value = store()->getAttribute(m_source.brightness).toInt();
    const int stepped = steppedBrightness(value, direction);
    if (stepped != value)
        write(m_source.brightness, stepped);
}

void CBacklightGroup::follow(CSystemSettings::SystemAttribute attribute)
{
    if (attribute == m_source.enabled)
        showEnabled();
    else if (attribute == m_source.time)
        showTime();
    else if (attribute == m_source.brightness)
        showBrightness();
}

void CBacklightGroup::showEnabled()
{
    const bool isEnabled = store()->getAttribute(m_source.enabled).toBool();
    m_enabled->setChecked(isEnabled);
    m_time->setEnabled(isEnabled); // without it the time says nothing
}

void CBacklightGroup::showTime()
{
    const int seconds = store()->getAttribute(m_source.time).toInt();
    // An unusual time stays on offer after another is chosen: the list is still open then.
    if (!m_times.contains(seconds)) {
        m_times = timesWith(seconds);
        QStringList items;
        for (const int time : qAsConst(m_times))
            items << timeText(time);
        m_time->addItems(items);
    }
    m_time->setCurrentIndex(m_times.indexOf(seconds));
}

void CBacklightGroup::showBrightness()
{
    const int value = store()->getAttribute(m_source.brightness).toInt();
    m_brightness->setValue(qBound(0, value, BrightnessMax));
    m_brightnessValue->setText(tr("%1 %", "brightness").arg(value));
    m_darker->setEnabled(value > 0);
    m_brighter->setEnabled(value < BrightnessMax);
}
