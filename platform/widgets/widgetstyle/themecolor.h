#pragma once

#include "widgets/widgetstyle/widgetstyle.h"

#include <type_traits>

/**
 * A colour of a control, as its setters take it: given outright (all that a QColor is made from), by its name
 * (Qt::red), or by its code in the theme (CWidgetStyle::ColorAccent, or its number), which is looked up at
 * every painting. A plain value; one made from nothing, from an invalid colour or from a code that the theme
 * lacks is no colour.
 */
class CThemeColor
{
public:
    CThemeColor() = default;
    CThemeColor(int code)
        : m_code(code)
    { }
    CThemeColor(Qt::GlobalColor color) // an enumerator, yet no code
        : m_color(color)
    { }
    template <typename Color,
        typename = std::enable_if_t<
            std::is_convertible_v<const Color&, QColor> && !std::is_convertible_v<const Color&, int>>>
    CThemeColor(const Color& color)
        : m_color(color)
    { }

    /** The colour to paint with now; invalid when there is none. */
    QColor color() const { return m_code < 0 ? m_color : CWidgetStyle::getColor(m_code); }
    /** Whether any colour was given. */
    bool isSet() const { return m_code >= 0 || m_color.isValid(); }

    bool operator==(const CThemeColor& other) const
    {
        return m_code == other.m_code && m_color == other.m_color;
    }
    bool operator!=(const CThemeColor& other) const { return !(*this == other); }

private:
    QColor m_color;
    int m_code = -1;
};
