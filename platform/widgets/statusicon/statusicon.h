#pragma once

#include "widgets/pushbutton/pushbutton.h"

/**
 * A picture that tells a state and may be touched: a push button without text whose pictures come from the
 * extra attributes, the background image and the icon, in this order. Emits triggered() on a completed touch.
 * A state without a picture of its own is drawn over the released one: a light veil when pressed, paler when
 * disabled.
 */
class CStatusIcon : public CPushButton
{
    Q_OBJECT

public:
    explicit CStatusIcon(QWidget* parent = nullptr);

    /** Picture of the released state. */
    void setIcon(const QPixmap& picture);
    QPixmap iconPixmap() const { return m_icon; }
    /** Size of the icon and of the widget. */
    void setIconSize(int width, int height);

    QSize sizeHint() const override;

signals:
    void triggered();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_icon;
};
