#pragma once

#include "widgets/framestyle/framestyle.h"

#include <QDialog>

/**
 * Base of the modal boxes and information pages: a frameless dialog with CWidget's background and border. While
 * it is up, the window behind it is dimmed. Arrow keys move the focus marker among its buttons, Enter presses
 * the marked one, so that a box can be answered without touching it.
 *
 * exec() runs it modally. Interface thread only.
 */
class CDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CDialog(QWidget *parent = nullptr);
    ~CDialog() override;

    void setBackgroundColor(const QColor &color);
    void setBackgroundColor(int colorCode);
    void setBorderColor(const QColor &color);
    void setBorderColor(int colorCode);
    void setBorderWidth(int width);
    QRect innerRect() const;

    /** Number by which the owner tells its dialogs apart; -1 until set. */
    void setWindowID(int id) { m_windowID = id; }
    int getWindowID() const { return m_windowID; }

public slots:
    virtual void translate();
    virtual void updateWidgetStyle();

signals:
    /** The dialog has come up, and has gone. */
    void popOn();
    void popOff();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    CFrameStyle m_frame;
    int m_windowID = -1;
    QWidget *m_pScrim = nullptr; // child of the window behind; gone with hideEvent
};
