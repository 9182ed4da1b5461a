#pragma once

#include "widgets/pushbutton/pushbutton.h"

/** A large tile of an entry grid: picture on a darker square, label beside it, ground by colour type. Line
 * feeds in the label start a new line. */
class CEntryItem : public CPushButton
{
    Q_OBJECT

public:
    /** Ground colours of the tiles (the theme's entry colours). */
    enum ColorType {
        ColorSlate = 0,
        ColorBlue = 1,
        ColorGreen = 2,
        ColorCyan = 3,
        ColorAmber = 4,
        ColorOlive = 5,
        ColorRose = 6,
        ColorTeal = 7,
        ColorIndigo = 8,
        ColorRed = 9,
        ColorViolet = 10
    };

    /** @param pictureName picture resource, decoded at the first paint; a missing one leaves the square empty
     */
    CEntryItem(const QString& pictureName, int colorType, const QString& label, QWidget* parent = nullptr);

    void setLabel(const QString& label);
    QString label() const { return text(); }
    int colorType() const { return m_colorType; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_pictureName;
    int m_colorType;
    QPixmap m_picture;
};
