#pragma once

#include <QColor>
#include <QHash>
#include <QPixmap>
#include <QPushButton>
#include <QVariant>

/**
 * The touch push button: released, pressed, focused (arrow keys) and disabled looks, with text, picture or both.
 *
 * Unless told otherwise it draws the theme's standard button. Emits QPushButton's clicked(bool).
 * Interface thread only. Owned by its Qt parent.
 */
class CPushButton : public QPushButton
{
    Q_OBJECT

public:
    /** Looks that replace the standard ones: pictures are QPixmap, colours QColor or a theme colour code (int). */
    enum ExtraAttribute { PressBackground = 0, ReleaseBackground = 1, SelectBackground = 2, PressColor = 3, ReleaseColor = 4 };

    explicit CPushButton(QWidget *parent = nullptr);
    explicit CPushButton(const QString &text, QWidget *parent = nullptr);

    void setExtraAttribute(ExtraAttribute attribute, const QVariant &value);
    QVariant extraAttribute(ExtraAttribute attribute) const;

    /** Picture of the released state, drawn over the fill and under icon and text. */
    void setBackgroundImage(const QPixmap &picture);
    /** Fill instead of the standard button; an invalid colour goes back to the standard look. */
    void setBackgroundColor(const QColor &color);
    void setTextColor(const QColor &color);
    /** Pixel size of the text; 0 takes the application font's. */
    void setTextSize(int pixels);

    /** The arrow-key focus marker: SelectBackground if there is one, and a frame in the accent colour. */
    virtual void setArrowKeyFocus(bool on);
    bool hasArrowKeyFocus() const { return m_arrowKeyFocus; }

    QSize sizeHint() const override;

public slots:
    virtual void updateWidgetStyle();

protected:
    void paintEvent(QPaintEvent *event) override;
    /** Text colour of the present state. */
    QColor currentTextColor() const;
    /** Draws the focus marker when it is set. */
    void paintFocusMarker(QPainter &painter) const;

private:
    QPixmap currentBackground() const;

    QHash<int, QVariant> m_attributes;
    QPixmap m_background;
    QColor m_fill;
    QColor m_textColor;
    int m_textSize = 0;
    bool m_arrowKeyFocus = false;
};
