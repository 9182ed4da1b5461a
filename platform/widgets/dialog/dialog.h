#pragma once

#include "widgets/framestyle/framestyle.h"

#include <QDialog>
#include <QList>
#include <QPointer>

class CLabel;
class CPushButton;

/**
 * Base of the modal boxes and information pages: a frameless dialog with CWidget's background and border.
 * While it is up, the window behind it is dimmed. Arrow keys move the focus marker among its buttons, Enter
 * presses the marked one, so that a box can be answered without touching it. Escape does nothing: only a
 * button answers. The function keys F1 to F4 go on to the window behind, where they act on the instrument as
 * ever.
 *
 * Its corners are round, unless it fills the page frame from edge to edge, as a page does.
 *
 * A dialog that its owner has not moved appears in the middle of the working area. exec() runs it modally.
 * Interface thread only.
 */
class CDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CDialog(QWidget* parent = nullptr);
    ~CDialog() override;

    void setBackgroundColor(const CThemeColor& color);
    void setBorderColor(const CThemeColor& color);
    void setBorderWidth(int width);
    /** The label across the top of the inner rectangle: its upper corners follow the dialog's. */
    void setTitleLabel(CLabel* title);
    /** The dialog's rectangle without its border. */
    QRect innerRect() const;

    /** Number by which the owner tells its dialogs apart; -1 until set. */
    void setWindowID(int id) { m_windowID = id; }
    int getWindowID() const { return m_windowID; }

    /** The button that carries the arrow-key focus marker, null if none does. */
    CPushButton* markedButton() const;

    /**
     * Takes the open dialog off the screen without answering it, and back. Meanwhile it takes no touch and no
     * key; the function keys go on to the window behind.
     */
    void setAside(bool aside);
    bool isAside() const { return m_isAside; }

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    /** Re-applies every visible text; the base hands the call on to all children that know it. */
    virtual void translate();
    /** Takes over a changed theme: repaints and hands the call on. */
    virtual void updateWidgetStyle();

signals:
    /** The dialog has come up, and has gone. */
    void popOn();
    void popOff();
    /** It was set aside, or taken back. */
    void asideChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /**
     * Moves the marker to the nearest button in an arrow key's direction; the first key marks the first
     * button. Stays where it is when there is none.
     */
    virtual void moveMarker(int arrowKey);

private:
    QList<CPushButton*> touchableButtons() const;
    void pressMarked();
    void passFunctionKeyOn(QKeyEvent* event);
    void dimWindowBehind();
    int cornerRadius() const;
    void roundCorners();
    void shapeWindow();

    CFrameStyle m_frame;
    QPointer<CLabel> m_pHeading;
    int m_windowID = -1;
    bool m_isAside = false;
    QPointer<QWidget> m_pScrim; // child of the window behind; gone with hideEvent
};
