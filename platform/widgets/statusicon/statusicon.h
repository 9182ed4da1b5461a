#pragma once

#include "widgets/pushbutton/pushbutton.h"

/**
 * A picture that tells a state and may be touched: a push button without text whose pictures come from the
 * extra attributes. Emits triggered() on a completed touch.
 */
class CStatusIcon : public CPushButton
{
    Q_OBJECT

public:
    explicit CStatusIcon(QWidget *parent = nullptr);

    /** Picture of the released state. */
    void setIcon(const QPixmap &picture);
    QPixmap iconPixmap() const;
    /** Size of the icon and of the widget. */
    void setIconSize(int width, int height);

signals:
    void triggered();

protected:
    void paintEvent(QPaintEvent *event) override;
};
