#include "widgets/widgetstyle/theme.h"

#include <QDebug>
#include <QIODevice>
#include <QXmlStreamReader>

namespace {

constexpr qint64 LargestFile = 1 << 20;
constexpr int LongestLog = 20; // a broken file must not flood the log
constexpr int LargestSize = 4096;

// Names of the colour codes, in their order; the looks of the file refer to colours by them.
constexpr const char* ColorNames[CTheme::ColorSlots]
    = {"screen", "toolBox", "textLight", "accent", "toolPage", "toolPageOpen", "pressed", "alert", "button",
        "textDark", "dialog", "frame", "disabled", "textDisabled", "plate", "textMuted", "field", "title"};
// Names of the metrics, in their order.
constexpr const char* MetricNames[CTheme::MetricSlots] = {"touchTarget", "buttonRadius", "focusWidth",
    "toolPageHeight", "toolItemHeight", "entryWidth", "entryHeight", "entryGapX", "entryGapY", "entryTop",
    "entryRadius", "messageTitleHeight", "messageMinWidth", "messageMaxWidth", "messageButtonWidth",
    "messageButtonHeight", "dialogRadius", "scrimOpacity", "fieldHeight"};

/** The place of a name in a table of names, -1 when it is not there. */
template <size_t Size> int placeOf(const QStringRef& name, const char* const (&names)[Size])
{
    for (size_t i = 0; i < Size; ++i) {
        if (name == QLatin1String(names[i]))
            return int(i);
    }
    return -1;
}

/** Reads the entries of one file; an entry is taken over whole or not at all. */
class CThemeReader
{
public:
    CThemeReader(QXmlStreamReader& xml, const QString& name, CTheme& theme)
        : m_xml(xml)
        , m_name(name)
        , m_theme(theme)
    { }

    void readEntry()
    {
        static const struct
        {
            QLatin1String element;
            bool (CThemeReader::*read)();
        } readers[] = {
            {QLatin1String("region"), &CThemeReader::readRegion},
            {QLatin1String("color"), &CThemeReader::readColor},
            {QLatin1String("font"), &CThemeReader::readFont},
            {QLatin1String("button"), &CThemeReader::readButton},
            {QLatin1String("entry"), &CThemeReader::readTile},
            {QLatin1String("metric"), &CThemeReader::readMetric},
        };
        m_attributes = m_xml.attributes();
        for (const auto& reader : readers) {
            if (m_xml.name() != reader.element)
                continue;
            if (!(this->*reader.read)() && ++m_refused <= LongestLog)
                qWarning().noquote() << "Theme" << m_name << "line" << m_xml.lineNumber() << ": unusable"
                                     << m_xml.name().toString() << "ignored";
            return;
        }
    }

private:
    bool number(const char* attribute, int low, int high, int& value) const
    {
        bool ok = false;
        const int read = m_attributes.value(QLatin1String(attribute)).toInt(&ok);
        if (!ok || read < low || read > high)
            return false;
        value = read;
        return true;
    }

    bool colorValue(QColor& color) const
    {
        // A name or "#rrggbb"; "transparent" would make texts and grounds vanish.
        const QString text = m_attributes.value(QLatin1String("value")).toString();
        const QColor read = QColor::isValidColor(text) ? QColor(text) : QColor();
        if (!read.isValid() || read.alpha() != 255)
            return false;
        color = read;
        return true;
    }

    bool colorCode(const char* attribute, int& code) const
    {
        const int place = placeOf(m_attributes.value(QLatin1String(attribute)), ColorNames);
        if (place >= 0)
            code = place;
        return place >= 0;
    }

    bool readRegion()
    {
        int id = 0, x = 0, y = 0, width = 0, height = 0;
        if (!number("id", 0, CTheme::RegionSlots - 1, id) || !number("x", 0, LargestSize, x)
            || !number("y", 0, LargestSize, y) || !number("width", 1, LargestSize, width)
            || !number("height", 1, LargestSize, height))
            return false;
        m_theme.regions[size_t(id)] = QRect(x, y, width, height);
        return true;
    }

    bool readColor()
    {
        int code = 0;
        return number("code", 0, CTheme::ColorSlots - 1, code) && colorValue(m_theme.colors[size_t(code)]);
    }

    bool readFont()
    {
        int kind = 0;
        CTheme::FontLook look;
        const auto weight = m_attributes.value(QLatin1String("weight"));
        look.bold = weight == QLatin1String("bold");
        if (!number("kind", 0, CTheme::FontSlots - 1, kind) || !number("size", 6, 96, look.pixelSize)
            || (!look.bold && weight != QLatin1String("normal")))
            return false;
        m_theme.fonts[size_t(kind)] = look;
        return true;
    }

    bool readButton()
    {
        int status = 0;
        CTheme::ButtonLook look;
        look.picture = m_attributes.value(QLatin1String("picture")).toString();
        if (!number("status", 0, CTheme::ButtonSlots - 1, status) || !colorCode("fill", look.fill)
            || !colorCode("text", look.text) || !colorCode("frame", look.frame)
            || !number("frameWidth", 0, 10, look.frameWidth))
            return false;
        m_theme.buttons[size_t(status)] = look;
        return true;
    }

    bool readTile()
    {
        int type = 0;
        return number("type", 0, CTheme::EntrySlots - 1, type) && colorValue(m_theme.entries[size_t(type)]);
    }

    bool readMetric()
    {
        const int metric = placeOf(m_attributes.value(QLatin1String("name")), MetricNames);
        return metric >= 0 && number("value", 0, LargestSize, m_theme.metrics[size_t(metric)]);
    }

    QXmlStreamReader& m_xml;
    const QString& m_name;
    CTheme& m_theme;
    QXmlStreamAttributes m_attributes;
    int m_refused = 0;
};

} // namespace

bool readTheme(QIODevice& file, const QString& name, CTheme& theme)
{
    if (file.size() > LargestFile) {
        qWarning().noquote() << "Theme" << name << "is larger than 1 MiB and was not read";
        return false;
    }
    QXmlStreamReader xml(&file);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("widget-style")) {
        qWarning().noquote() << "Theme" << name << "is not a widget-style file" << xml.errorString();
        return false;
    }
    // Taken over only when the file is whole: half a theme would mix two looks.
    CTheme read = theme;
    CThemeReader reader(xml, name, read);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement)
            reader.readEntry();
    }
    if (xml.hasError()) {
        qWarning().noquote() << "Theme" << name << "line" << xml.lineNumber() << ":" << xml.errorString();
        return false;
    }
    theme = read;
    return true;
}
