#pragma once

#include "appinfo.h"
#include "widgets/widget/widget.h"

class CAppFeatureHeader;
class CAppStatusIndicator;

/**
 * The strip across the top of the screen: title and path on the left, the touch buttons on the right.
 *
 * It decides nothing: the main window sets the texts, shows the buttons through the status indicator and acts
 * on the signals.
 */
class CTopBar : public CWidget
{
    Q_OBJECT

public:
    explicit CTopBar(QWidget* parent = nullptr);

    void setTopText(const QString& text);
    /** The path to the current page, its steps separated by ">". */
    void setNavigationText(const QString& text);

    /** Accepted and ignored: the bar shows application state only through its texts. */
    void setAppState(const AppInfo& info);

    CAppStatusIndicator* getAppStateInidcator() const { return m_pAppStatIndicator; }

public slots:
    /** Ignored: the bar has no text of its own. */
    void translate() override;

signals:
    void homeTriggered();
    void closeTriggered();
    void powerTriggered();
    void storageTriggered();
    void wifiWiziTriggered();

private:
    void initialize();

    CAppFeatureHeader* m_pAppFeatureHeader = nullptr;
    CAppStatusIndicator* m_pAppStatIndicator = nullptr;
};
