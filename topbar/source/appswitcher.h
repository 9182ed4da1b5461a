#pragma once

#include "appinfo.h"
#include "widgets/widget/widget.h"

class CAppTab;

/**
 * The tabs of the two test applications, 140 x 60. A touch on a tab selects its application; the owner sets
 * the tabs' status, texts and session numbers.
 */
class CAppSwitcher : public CWidget
{
    Q_OBJECT

public:
    explicit CAppSwitcher(QWidget* parent = nullptr);

    /** The tab of application 0 or 1, owned by the switcher; null for any other index. */
    CAppTab* getAppButton(int index) const;

public slots:
    /** Ignored: the tabs do not follow test application state by themselves. */
    void changeAppState(const AppInfo& info);

signals:
    /** The user picked an application, also when it was the selected one already. */
    void currentAppChanged(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void initialize();
    void choose(CAppTab* tab, CAppTab* other);

    CAppTab* m_pApp1Tab = nullptr;
    CAppTab* m_pApp2Tab = nullptr;
};
