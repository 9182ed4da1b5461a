#pragma once

#include "devicestatus.h"
#include "widgets/infopage/infopage.h"

class CLabel;
class CProgressBar;
class CStatusIcon;

/**
 * The power page: power source, battery state, level and remaining running time. A modal dialog that its
 * owner opens with the latest record and may refresh while it is up; it is as high as the rows that it shows.
 *
 * Interface thread only. Owned by its Qt parent.
 */
class CPowerMonitor : public CInfoPage
{
    Q_OBJECT

public:
    explicit CPowerMonitor(QWidget* parent = nullptr);

    using CDialog::exec;
    /** Shows the record modally. @return the result of the dialog; it says nothing */
    int exec(const PowerStatus& status);

    /** Without effect: picture and state text tell the source. */
    void setPowerSource(bool isBattery);
    /** Shows the rows that the record calls for, with its level and state. */
    void setPowerCapacity(const PowerStatus& status);
    /** Shows a remaining time in minutes. */
    void setPowerRemainTime(int minutes);

public slots:
    /** Takes over a new record. */
    void updatePowerStatus(const PowerStatus& status);
    /** Re-applies the texts; while the page is up also those of the record it shows. */
    void translate() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void initialize();
    void fitToRows();
    /** Places the rows. @return the height that they take with the dialog's border, in pixels */
    int layoutRows();

    int m_powerLevel = 0; // per cent
    bool bIsACPower = true;
    PowerStatus m_status; // shown last
    CLabel* m_pPowerSrcNameLabel = nullptr;
    CStatusIcon* m_pBattery = nullptr;
    CLabel* m_pBattStatNameLabel = nullptr;
    CLabel* m_pBattStatLabel = nullptr;
    CProgressBar* m_pPowerLvlBar = nullptr;
    CLabel* m_pBattCapNameLabel = nullptr;
    CLabel* m_pBattCapLabel = nullptr;
    CLabel* m_pBattTimeTitle = nullptr;
    CLabel* m_pBattTimeValue = nullptr;
};
