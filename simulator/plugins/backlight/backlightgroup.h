#pragma once

#include "systemsettings.h"
#include "widgets/widget/widget.h"

#include <QVector>

class CCheckBox;
class CLabel;
class CParmComboBox;
class CProgressBar;
class CPushButton;

/**
 * The backlight settings of one power source: whether the backlight goes off, after which time, and how
 * bright it is.
 *
 * A change is written to the settings store and, with the other settings of the source, to the block that
 * other processes read, and marked in the source's "changed" attribute, upon which the shell takes it over. A
 * change made elsewhere is shown at once.
 */
class CBacklightGroup : public CWidget
{
    Q_OBJECT

public:
    struct Source
    {
        const char* title;
        CSystemSettings::SystemAttribute enabled;
        CSystemSettings::SystemAttribute time; ///< seconds
        CSystemSettings::SystemAttribute brightness; ///< 0 to 100
        CSystemSettings::SystemAttribute changed;
    };

    CBacklightGroup(const Source& source, QWidget* parent);

public slots:
    void translate() override;

protected:
    /** A touch on the level bar, and moving on from there, sets the brightness in whole steps. */
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QRect levelArea() const;
    void setLevelAt(int x);
    void placeControls();
    void write(CSystemSettings::SystemAttribute attribute, const QVariant& value);
    void stepBrightness(int direction);
    void follow(CSystemSettings::SystemAttribute attribute);
    void showEnabled();
    void showTime();
    void showBrightness();

    Source m_source;
    QVector<int> m_times; // seconds, of the items of m_time
    CLabel* m_title;
    CCheckBox* m_enabled;
    CParmComboBox* m_time;
    CLabel* m_brightnessName;
    CLabel* m_brightnessValue;
    CPushButton* m_darker;
    CProgressBar* m_brightness;
    CPushButton* m_brighter;
    bool m_isLevelHeld = false;
};
