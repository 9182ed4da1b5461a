#pragma once

#include "widgets/framestyle/framestyle.h"

#include <QWidget>

/**
 * Base of every page, bar and composed control: a QWidget with a background, a border per side, the arrow-key
 * focus marker and the two calls that reach a whole tree, translate() and updateWidgetStyle().
 *
 * Interface thread only. Owned by its Qt parent.
 */
class CWidget : public QWidget
{
    Q_OBJECT

public:
    /**
     * Type codes of the library's own classes. Arrow-key navigation skips TypePlain and TypeLabel: the one
     * only groups other widgets, the other cannot be touched.
     */
    enum TypeCode {
        TypePlain = 0x10000,
        TypeControl = 0x10001,
        TypeToolBox = 0x10010,
        TypeEntryGrid = 0x10020,
        TypeLabel = 0x10063
    };

    explicit CWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = {});

    void setBackgroundColor(const CThemeColor& color);
    void setBackgroundImage(const QPixmap& picture);
    void setBorderColor(const CThemeColor& color);
    /** Border width in pixels: all four sides, or left, top, right, bottom. A layout's items keep off the
     * border. */
    void setBorderWidth(int width);
    void setBorderWidth(int left, int top, int right, int bottom);
    /** Rounds corners of the background; what they leave has the border's colour. */
    void setRounded(int radius, CFrameStyle::Corners corners);
    const CFrameStyle& frameStyle() const { return m_frame; }

    /** The widget's rectangle without its border. */
    QRect innerRect() const;

    /** Type code of this object's class; TypePlain unless a class says otherwise. */
    int typeCode() const { return m_typeCode; }

    /** Shows or removes the arrow-key focus marker, a frame in the accent colour drawn inside the widget. */
    virtual void setArrowKeyFocus(bool on);
    bool hasArrowKeyFocus() const { return m_arrowKeyFocus; }

public slots:
    /** Re-applies every visible text in the current language. The base hands the call on to all CWidget
     * children. */
    virtual void translate();
    /** Takes over a changed theme: repaints this widget and hands the call on to all children that know it.
     */
    virtual void updateWidgetStyle();

protected:
    void setTypeCode(int code) { m_typeCode = code; }
    /** Background, border and focus marker; a derived class that paints more calls this, or paintFrame(),
     * first.
     */
    void paintEvent(QPaintEvent* event) override;
    /** Background and border alone: for a class that puts the marker over its own painting, or has its own.
     */
    void paintFrame(QPainter& painter) const;
    /** Draws the focus marker when it is set. */
    void paintFocusMarker(QPainter& painter) const;

private:
    CFrameStyle m_frame;
    int m_typeCode = TypePlain;
    bool m_arrowKeyFocus = false;
};
