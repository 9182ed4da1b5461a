#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QRect>
#include <QString>

/**
 * The theme: screen regions, colour codes, font kinds, button pictures and entry tile colours, read from
 * "widget-style.xml". All geometry and colour of the controls comes from here.
 *
 * An entry that the file lacks, or that cannot be read, has its built-in value (the resource
 * ":/conf/widget-style.xml"); so a missing, empty or damaged file gives the built-in theme.
 * Interface thread only; the values are process-wide.
 */
class CWidgetStyle
{
public:
    /** Numbers of the screen regions (x, y, width, height in screen pixels). */
    enum ScreenRegion {
        RegionScreen = 0,
        RegionTopBar = 1,
        RegionPageFrame = 2,
        RegionToolBox = 3,
        RegionWorkingArea = 4,
        RegionBottomBar = 7
    };

    /** Colour codes. The numbers are fixed, the colours are the theme's. */
    enum ColorCode {
        ColorScreen = 0, ///< ground of the screen and its pages
        ColorToolBox = 1, ///< ground of the tool box
        ColorTextLight = 2, ///< text on dark grounds, title texts, released buttons
        ColorAccent = 3, ///< the one accent: focus marker, pressed text, overlay frames
        ColorToolPage = 4, ///< tool box page header
        ColorToolPageOpen = 5, ///< header of the open tool box page
        ColorPressed = 6, ///< fill of a pressed or chosen control
        ColorAlert = 7, ///< title ground of warnings and errors
        ColorButton = 8, ///< fill of a released button
        ColorTextDark = 9, ///< text on light grounds
        ColorDialog = 10, ///< ground of message boxes
        ColorFrame = 11, ///< one-pixel frames
        ColorDisabled = 12, ///< fill of a disabled control
        ColorTextDisabled = 13, ///< text of a disabled control
        ColorPlate = 14, ///< plate behind text on the light top bar
        ColorTextMuted = 15, ///< secondary text on dark grounds
        ColorField = 16, ///< ground of value fields
        ColorTitle = 17, ///< title ground of ordinary dialogs
        ColorCount
    };

    enum FontKind {
        FontSmall = 0,
        FontText = 1,
        FontTopText = 2,
        FontNavigation = 3,
        FontTabIndex = 4,
        FontTabCaption = 5,
        FontTable = 6,
        FontEntry = 7,
        FontToolPage = 8,
        FontToolItem = 9,
        FontButton = 10,
        FontCount
    };

    /** Single numbers of the theme, in pixels unless told otherwise. */
    enum Metric {
        MetricTouchTarget = 0, ///< least side of what is touched
        MetricButtonRadius,
        MetricFocusWidth,
        MetricToolPageHeight,
        MetricToolItemHeight,
        MetricEntryWidth,
        MetricEntryHeight,
        MetricEntryGapX,
        MetricEntryGapY,
        MetricEntryTop,
        MetricEntryRadius,
        MetricMessageTitleHeight,
        MetricMessageMinWidth,
        MetricMessageMaxWidth,
        MetricMessageButtonWidth,
        MetricMessageButtonHeight,
        MetricDialogRadius,
        MetricScrimOpacity, ///< of the veil behind a dialog, of 255
        MetricFieldHeight,
        MetricCount
    };

    enum ButtonStatus { ButtonReleased = 0, ButtonPressed = 1, ButtonFocused = 2, ButtonDisabled = 3 };

    /**
     * Reads the theme file over the current values.
     * @return false when the file cannot be opened or parsed; the values are then unchanged, and a log line
     * says so
     */
    static bool initialize(const QString& fileName);

    /** Goes back to the built-in theme before another file is read, so that nothing of the old file survives.
     */
    static void setWidgetStyle(const QString& fileName);

    /** The region's rectangle; a null rectangle for a number that has none. */
    static QRect getScreenRegion(int region);
    /** The colour of a code; an invalid colour outside the table. */
    static QColor getColor(int code);
    /** The font of a kind: family of the application font, size and weight of the theme. */
    static QFont getFont(int kind);
    /** Background picture of a standard button in a status, stretched by its painter; drawn once and kept. */
    static QPixmap getButtonPixmap(int status);
    /** The status whose getButtonPixmap() this is, -1 for any other picture: its painter can then draw it at
     * any size. */
    static int buttonStatusOf(const QPixmap& picture);
    /** Colours and frame width of the standard button in a status; an unknown status counts as released. */
    struct ButtonLook
    {
        QColor fill;
        QColor text;
        QColor frame;
        int frameWidth = 0;
        QString picture; ///< file or resource to stretch instead; mostly empty
    };
    static ButtonLook getButtonLook(int status);
    /** Ground of an entry tile of a colour type (CEntryItem::ColorType); type 1's colour outside the table.
     */
    static QColor getEntryColor(int type);
    static int getMetric(Metric metric);
};
