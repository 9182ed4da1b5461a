#pragma once

#include "devicestatus.h"
#include "statustype.h"
#include "widgets/widget/widget.h"

class CStatusIcon;

/**
 * Right part of the top bar, 300 x 60: the Wi-Fi wizard, Home and Close buttons, side by side from the right.
 *
 * Home and Close are hidden until setStatusVisible() shows them; the Wi-Fi wizard button is there while a
 * wireless adapter is. It follows the signal relay, when there is one at construction.
 */
class CAppStatusIndicator : public CWidget
{
    Q_OBJECT

public:
    explicit CAppStatusIndicator(QWidget* parent = nullptr);

    /** Shows or hides the close or the home button; any other type only repaints. */
    void setStatusVisible(StatusType type, bool visible);
    /** Whether that button is shown; false for any other type. */
    bool isStatusVisible(StatusType type) const;

    /** Size of a button in pixels, taken over at the next resize. */
    void setIconSize(int w, int h);

    /** Row of the Wi-Fi strip, as its y in pixels, that shows a record of a plugged adapter. */
    static int wifiRow(const WIFIStatus& status);

public slots:
    void setUILocked(bool locked);
    void updateWifiWizStatus(const WIFIStatus& status);

signals:
    void homeTriggered();
    void closeTriggered();
    /** No button here emits this one or the next; they are for an owner that adds such buttons. */
    void powerTriggered();
    void storageTriggered();
    void wifiWiziTriggered();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void initialize();
    CStatusIcon* addIcon(const char* name, void (CAppStatusIndicator::*triggered)());

    QSize m_iconSize{60, 60};
    CStatusIcon* m_pHomeIcon = nullptr;
    CStatusIcon* m_pCloseIcon = nullptr;
    CStatusIcon* m_pWifiWizIcon = nullptr;
    int m_wifiRow = -1; // the row whose pictures the button has, -1 before the first
};
