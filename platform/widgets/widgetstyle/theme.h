#pragma once

#include <QColor>
#include <QRect>
#include <QString>

#include <array>

class QIODevice;

/** The values of a theme file, as CWidgetStyle keeps them. A plain record; private to the control library. */
struct CTheme
{
    static constexpr int RegionSlots = 8;
    static constexpr int ColorSlots = 18;
    static constexpr int FontSlots = 11;
    static constexpr int ButtonSlots = 4;
    static constexpr int EntrySlots = 11;
    static constexpr int MetricSlots = 19;

    struct FontLook
    {
        int pixelSize = 16;
        bool bold = false;
    };

    /** Colours are colour codes. */
    struct ButtonLook
    {
        int fill = 8;
        int text = 2;
        int frame = 8;
        int frameWidth = 0;
        QString picture; // used instead of the drawn look when not empty
    };

    std::array<QRect, RegionSlots> regions;
    std::array<QColor, ColorSlots> colors;
    std::array<FontLook, FontSlots> fonts;
    std::array<ButtonLook, ButtonSlots> buttons;
    std::array<QColor, EntrySlots> entries;
    std::array<int, MetricSlots> metrics{};
};

/**
 * Reads a theme file over `theme`. An entry that cannot be read is logged and leaves its value.
 * @param name the file's name for the log
 * @return false when the file is too large, not well-formed or no theme; `theme` is then unchanged
 */
bool readTheme(QIODevice& file, const QString& name, CTheme& theme);
