#pragma once

#include "probe.h"
#include "widgets/widget/widget.h"

class CCheckBox;
class CLabel;
class COutputView;
class CParmLineEdit;
class CPushButton;

/** The page of the IP Tools: an address, the tools to run against it, and what they print. */
class CIpToolsPage : public CWidget
{
    Q_OBJECT

public:
    /** @param probe the run that the page shows and drives; not owned, outlives the page */
    CIpToolsPage(CProbe* probe, QWidget* parent);

public slots:
    void translate() override;

private:
    void run(CProbe::Tool tool);
    QString stateText() const;
    void showRun();

    CProbe* m_pProbe;
    CParmLineEdit* m_pAddress;
    CCheckBox* m_pBackground;
    CPushButton* m_pPing;
    CPushButton* m_pTrace;
    CPushButton* m_pStop;
    CLabel* m_pState;
    COutputView* m_pOutput;
    CPushButton* m_pPageUp;
    CPushButton* m_pPageDown;
};
