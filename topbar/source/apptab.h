#pragma once

#include "resourceman.h"
#include "widgets/widget/widget.h"

/**
 * Tab of one test application, 70 x 60: its number or caption over a picture of its state.
 *
 * Its owner sets everything; the tab does not follow the application by itself. While the application's test
 * module is absent it shows that and keeps its status.
 */
class CAppTab : public CWidget
{
    Q_OBJECT

public:
    explicit CAppTab(QWidget* parent = nullptr);

    /** Index of the application the tab stands for, 0 or 1. */
    void setIndex(unsigned int index);
    unsigned int getIndex() const { return m_appIndex; }

    /**
     * Sets the look. Ignored while the module is absent; while the tab has arrow-key focus only a change from
     * or to AppRemote takes effect.
     */
    void setStatus(CResourceMan::AppStatus status);
    CResourceMan::AppStatus status() const { return m_status; }

    void setText(const QString& text);

    /** Marks the tab as the selected one, and maps its look to pushed or released. */
    void setChecked(bool checked);
    bool isChecked() const { return bIsChecked; }

    /** The application is in use: the status is neither of the unused ones. */
    bool isActived() const;
    /** The application is operated here, not remotely. */
    bool isLocalApp() const { return m_status != CResourceMan::AppRemote; }

    void setModuleExists(bool exists);
    bool isModuleExists() const { return bIsModuleExists; }

    /** Number of the remote session, shown instead of the index of a remotely operated application. */
    void setSessionNum(unsigned int number);

    void setArrowKeyFocus(bool on) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void initialize();
    /**
     * @param besides the session number's place, which the caption leaves free; null for a local application
     * @param covered the number's plate, which the caption of a local application covers
     */
    void paintCaption(QPainter& painter, const QRect& besides, const QRect& covered) const;

    unsigned int m_appIndex = 0;
    CResourceMan::AppStatus m_status = CResourceMan::AppUnuseRelease;
    QString m_text;
    bool bIsChecked = false;
    bool bIsModuleExists = true;
    int m_sessionNum = 0;
};
