#pragma once

#include "widgets/widgetstyle/themecolor.h"

#include <QHash>
#include <QPixmap>
#include <QPushButton>
#include <QVariant>

/**
 * The touch push button: released, pressed, focused (arrow keys) and disabled looks, with text, picture or
 * both.
 *
 * Unless told otherwise it draws the theme's standard button. It takes no keyboard focus: arrow keys go to
 * the window, which moves the marker. A text that does not fit is made a little smaller, then elided; a line
 * feed starts a new line. Emits QPushButton's clicked(bool). Interface thread only. Owned by its Qt parent.
 */
class CPushButton : public QPushButton
{
    Q_OBJECT

public:
    /**
     * Looks that replace the standard ones: backgrounds are QPixmap, QColor or a theme colour code (int),
     * colours QColor or a theme colour code. A theme's button picture is drawn at the button's size and
     * follows the theme.
     */
    enum ExtraAttribute {
        PressBackground = 0,
        ReleaseBackground = 1,
        SelectBackground = 2,
        PressColor = 3,
        ReleaseColor = 4
    };

    explicit CPushButton(QWidget* parent = nullptr);
    explicit CPushButton(const QString& text, QWidget* parent = nullptr);

    /** An invalid QVariant takes the attribute away again. */
    void setExtraAttribute(ExtraAttribute attribute, const QVariant& value);
    QVariant extraAttribute(ExtraAttribute attribute) const;

    /** The look of the button that says yes: a brighter fill than those beside it. */
    void setAffirmative();
    /** The look of a button that changes nothing, on a light ground: gray. */
    void setQuiet();

    /** Picture of the released state, drawn over the fill and under icon and text. */
    void setBackgroundImage(const QPixmap& picture);
    /**
     * Fill instead of the standard button; no colour goes back to the standard look. On a fill on which the
     * text cannot be read, the text gets the standard button as its plate.
     */
    void setBackgroundColor(const CThemeColor& color);
    void setTextColor(const CThemeColor& color);
    /** Pixel size of the text; 0 takes the theme's, or that of setFont(). */
    void setTextSize(int pixels);

    /** The arrow-key focus marker: the SelectBackground picture if there is one, else a frame in the accent
     * colour. */
    virtual void setArrowKeyFocus(bool on);
    bool hasArrowKeyFocus() const { return m_arrowKeyFocus; }

    QSize sizeHint() const override;

public slots:
    /** Takes over a changed theme. */
    virtual void updateWidgetStyle();

protected:
    void paintEvent(QPaintEvent* event) override;
    /** Font of the text: setFont()'s or the theme's of this kind, in the text size if one is set. */
    QFont textFont(int fontKind) const;
    /** Text colour of the present state. */
    QColor currentTextColor() const;
    /** The text colour set, `fallback` if none was. */
    QColor textColorOr(const QColor& fallback) const
    {
        const QColor own = m_textColor.color();
        return own.isValid() ? own : fallback;
    }
    /** Everything under icon and text in the present state. */
    void paintGround(QPainter& painter) const;
    /** Draws the focus marker when it is set. */
    void paintFocusMarker(QPainter& painter, int radius) const;
    /** Picture of the present state from the attributes, null if they have none for it. */
    QPixmap statePicture() const;
    QPixmap backgroundImage() const { return m_background.picture; }

private:
    /** A picture, or the standard button of a status that it stood for. */
    struct Ground
    {
        QPixmap picture;
        CThemeColor color;
        int buttonStatus = -1;
        bool isSet() const { return buttonStatus >= 0 || color.isSet() || !picture.isNull(); }
    };

    static Ground groundOf(const QVariant& value);
    Ground currentGround() const;
    void paintOne(QPainter& painter, const Ground& ground) const;
    QColor attributeColor(ExtraAttribute attribute) const;
    bool standsOut(const QColor& fill) const;

    QHash<int, QVariant> m_attributes;
    QHash<int, Ground> m_grounds; // of the three background attributes
    Ground m_background;
    CThemeColor m_fill;
    CThemeColor m_textColor;
    int m_textSize = 0;
    bool m_arrowKeyFocus = false;
};
