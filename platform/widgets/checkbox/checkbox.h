#pragma once

#include "widgets/pushbutton/pushbutton.h"

/**
 * A check box of touch size: a box with a tick, then the text. Exclusive boxes are drawn round. The box takes
 * the text's colour, so that it is seen on any ground the text is readable on.
 */
class CCheckBox : public CPushButton
{
    Q_OBJECT

public:
    explicit CCheckBox(QWidget* parent = nullptr);
    explicit CCheckBox(const QString& text, QWidget* parent = nullptr);

    /** Exclusive boxes do not uncheck themselves when touched again; the owner unchecks the others. */
    void setExclusive(bool exclusive);
    bool isExclusive() const { return m_exclusive; }
    /** Draws the box on a tile like a button (true) or plain (false, the default). */
    void setSkinEnabled(bool enabled);

    QSize sizeHint() const override;

signals:
    /** Qt::Checked or Qt::Unchecked, after every change. */
    void stateChanged(int state);

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor markColor() const;
    void paintTile(QPainter& painter) const;
    void paintBox(QPainter& painter, const QRect& box) const;

    bool m_exclusive = false;
    bool m_skin = false;
};
