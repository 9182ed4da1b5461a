#include "picturetable.h"

#include <QFile>

#include <algorithm>
#include <iterator>

namespace {

constexpr int buttonSide = 60;

/** Every element with all that may stand in it. */
constexpr struct
{
    const char* element;
    const char* attributes;
} KNOWN[] = {
    {"pictures", ""},
    {"color", "name value"},
    {"ground", "name fill frame frame-width dashed edge inset radius"},
    {"look", "x ground"},
    {"picture", "name width height glyph-size"},
    {"cell", "rect ground glyphs glyph-size shift"},
    {"button", "y glyphs"},
};

QString text(const QXmlStreamAttributes& attributes, const char* name)
{
    return attributes.value(QLatin1String(name)).toString();
}

} // namespace

QStringList CPictureTable::read(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {QStringLiteral("cannot read %1").arg(fileName)};
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement) {
            m_line = xml.lineNumber();
            readElement(xml);
        }
    }
    if (xml.hasError())
        fault(xml.errorString());
    return m_errors;
}

void CPictureTable::readElement(const QXmlStreamReader& xml)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    const QStringRef element = xml.name();
    const auto* const known = std::find_if(std::begin(KNOWN), std::end(KNOWN),
        [&element](const auto& row) { return element == QLatin1String(row.element); });
    if (known == std::end(KNOWN)) {
        fault(QStringLiteral("unknown element %1").arg(element.toString()));
        return;
    }
    const QStringList names = QString::fromLatin1(known->attributes).split(QLatin1Char(' '));
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (!names.contains(attribute.name()))
            fault(QStringLiteral("unknown attribute %1").arg(attribute.name().toString()));
    }
    if (element == QLatin1String("color"))
        m_colors.insert(text(attributes, "name"), QColor(text(attributes, "value")));
    else if (element == QLatin1String("ground"))
        readGround(attributes);
    else if (element == QLatin1String("look"))
        m_looks << Look{qRound(number(attributes, "x", 0)), text(attributes, "ground")};
    else if (element == QLatin1String("picture"))
        readPicture(attributes);
    else if (element == QLatin1String("cell"))
        readCell(attributes);
    else if (element == QLatin1String("button"))
        readButton(attributes);
}

void CPictureTable::readGround(const QXmlStreamAttributes& attributes)
{
    Ground ground;
    if (attributes.hasAttribute(QLatin1String("fill")))
        ground.fill = color(text(attributes, "fill"));
    if (attributes.hasAttribute(QLatin1String("frame"))) {
        ground.frame = color(text(attributes, "frame"));
        ground.frameWidth = number(attributes, "frame-width", 0);
    }
    if (attributes.hasAttribute(QLatin1String("edge")))
        ground.edge = color(text(attributes, "edge"));
    if (attributes.hasAttribute(QLatin1String("dashed")))
        ground.line = Qt::DashLine;
    if (attributes.hasAttribute(QLatin1String("inset"))) {
        const QVector<int> n = numbers(text(attributes, "inset"), 4);
        ground.inset = QMargins(n[0], n[1], n[2], n[3]);
    }
    ground.radius = number(attributes, "radius", 0);
    m_grounds.insert(text(attributes, "name"), ground);
}

void CPictureTable::readPicture(const QXmlStreamAttributes& attributes)
{
    Picture picture;
    picture.name = text(attributes, "name");
    if (picture.name.isEmpty() || picture.name.contains(QLatin1Char('/')))
        fault(QStringLiteral("\"%1\" is no file name").arg(picture.name));
    picture.size = QSize(qRound(number(attributes, "width", 0)), qRound(number(attributes, "height", 0)));
    if (picture.size.isEmpty())
        fault(QStringLiteral("%1 has no size").arg(picture.name));
    const auto same = [&picture](const Picture& other) { return other.name == picture.name; };
    if (std::any_of(m_pictures.cbegin(), m_pictures.cend(), same))
        fault(QStringLiteral("%1 is there twice").arg(picture.name));
    m_glyphSize = number(attributes, "glyph-size", Cell().glyphSize);
    m_pictures << picture;
}

void CPictureTable::readCell(const QXmlStreamAttributes& attributes)
{
    Cell cell;
    const QVector<int> n = numbers(text(attributes, "rect"), 4);
    cell.rect = QRect(n[0], n[1], n[2], n[3]);
    cell.ground = text(attributes, "ground");
    cell.layers = layers(text(attributes, "glyphs"));
    cell.glyphSize = number(attributes, "glyph-size", m_glyphSize);
    if (attributes.hasAttribute(QLatin1String("shift"))) {
        const QVector<int> shift = numbers(text(attributes, "shift"), 2);
        cell.shift = QPointF(shift[0], shift[1]);
    }
    addCell(cell);
}

void CPictureTable::readButton(const QXmlStreamAttributes& attributes)
{
    const int y = qRound(number(attributes, "y", 0));
    if (m_looks.isEmpty())
        fault(QStringLiteral("a button before the first look"));
    for (const Look& look : qAsConst(m_looks)) {
        Cell cell;
        cell.rect = QRect(look.x, y, buttonSide, buttonSide);
        cell.ground = look.ground;
        cell.layers = layers(text(attributes, "glyphs"));
        cell.glyphSize = m_glyphSize;
        addCell(cell);
    }
}

void CPictureTable::addCell(const Cell& cell)
{
    if (m_pictures.isEmpty() || !QRect(QPoint(), m_pictures.last().size).contains(cell.rect))
        fault(QStringLiteral("a cell lies outside its picture"));
    else if (!cell.ground.isEmpty() && !m_grounds.contains(cell.ground))
        fault(QStringLiteral("unknown ground %1").arg(cell.ground));
    else
        m_pictures.last().cells << cell;
}

QVector<Layer> CPictureTable::layers(const QString& text)
{
    QVector<Layer> result;
    const QStringList parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        Layer layer;
        layer.glyph = part.section(QLatin1Char(':'), 0, 0);
        const QString tint = part.section(QLatin1Char(':'), 1);
        if (tint == QLatin1String("gap"))
            layer.kind = Layer::Gap;
        else if (!tint.isEmpty())
            layer.tint = color(tint);
        result << layer;
    }
    return result;
}

QColor CPictureTable::color(const QString& name)
{
    QColor result = m_colors.value(name);
    if (!result.isValid())
        fault(QStringLiteral("unknown color %1").arg(name));
    return result;
}

qreal CPictureTable::number(const QXmlStreamAttributes& attributes, const char* name, qreal absent)
{
    if (!attributes.hasAttribute(QLatin1String(name)))
        return absent;
    bool ok = false;
    const qreal result = text(attributes, name).toDouble(&ok);
    if (!ok)
        fault(QStringLiteral("%1 \"%2\" is no number").arg(QLatin1String(name), text(attributes, name)));
    return result;
}

QVector<int> CPictureTable::numbers(const QString& text, int count)
{
    QVector<int> result;
    bool sound = true;
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString& part : parts) {
        bool ok = false;
        result << part.toInt(&ok);
        sound = sound && ok;
    }
    if (!sound || result.size() != count)
        fault(QStringLiteral("\"%1\" is not %2 numbers").arg(text).arg(count));
    result.resize(count);
    return result;
}

void CPictureTable::fault(const QString& text)
{
    m_errors << QStringLiteral("line %1: %2").arg(m_line).arg(text);
}
