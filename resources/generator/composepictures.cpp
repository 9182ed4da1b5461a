// Composes the pictures of the instrument: reads the table of pictures, draws each cell's ground and glyphs,
// and writes one PNG per picture and the resource collection that compiles them in. Runs at build time.
//
//   composepictures TABLE GLYPH-DIRECTORY OUTPUT-DIRECTORY
//
// Exit status 0, or 1 after one line per fault of the table on stderr.

#include "picturetable.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QTextStream>

#include <algorithm>

namespace {

// Every line of a glyph has this width; a gap is the same shape drawn wider, filled, and erased.
const char* const strokeWidth = "stroke-width=\"2.4\"";
const char* const gapStrokeWidth = "stroke-width=\"6.2\"";
const char* const noFill = "fill=\"none\"";
const char* const gapFill = "fill=\"#000000\"";

class CPictureComposer
{
public:
    CPictureComposer(const CPictureTable& table, const QDir& glyphs)
        : m_table(table)
        , m_glyphs(glyphs)
    { }

    QImage compose(const Picture& picture)
    {
        QImage image(picture.size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const Cell& cell : picture.cells) {
            drawGround(painter, cell);
            painter.drawImage(cell.rect.topLeft(), glyphImage(cell));
        }
        painter.end();
        return compact(image.convertToFormat(QImage::Format_ARGB32));
    }

    QStringList errors() const { return m_errors; }

private:
    void drawGround(QPainter& painter, const Cell& cell) const
    {
        if (cell.ground.isEmpty())
            return;
        const Ground ground = m_table.ground(cell.ground);
        const qreal edge = ground.edge.isValid() ? 1 : 0;
        const qreal inner = ground.frameWidth / 2.0 + edge;
        const QRectF rect
            = QRectF(cell.rect.marginsRemoved(ground.inset)).adjusted(inner, inner, -inner, -inner);
        painter.setBrush(ground.fill.isValid() ? QBrush(ground.fill) : QBrush(Qt::NoBrush));
        if (ground.edge.isValid()) {
            painter.setPen(QPen(ground.edge, ground.frameWidth + 2 * edge));
            painter.drawRoundedRect(rect, ground.radius, ground.radius);
            painter.setBrush(Qt::NoBrush);
        }
        painter.setPen(
            ground.frameWidth > 0 ? QPen(ground.frame, ground.frameWidth, ground.line) : QPen(Qt::NoPen));
        painter.drawRoundedRect(rect, ground.radius, ground.radius);
    }

    /** The glyph layers of a cell over each other, clipped to the cell. */
    QImage glyphImage(const Cell& cell)
    {
        QImage image(cell.rect.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        for (const Layer& layer : cell.layers) {
            const bool gap = layer.kind == Layer::Gap;
            painter.setCompositionMode(
                gap ? QPainter::CompositionMode_DestinationOut : QPainter::CompositionMode_SourceOver);
            painter.setOpacity(gap ? 1.0 : layer.tint.alphaF());
            painter.drawImage(0, 0, layerImage(cell, layer));
        }
        return image;
    }

    QImage layerImage(const Cell& cell, const Layer& layer)
    {
        QImage image(cell.rect.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QByteArray source = glyphSource(layer.glyph);
        source.replace("currentColor", layer.tint.name(QColor::HexRgb).toLatin1());
        if (layer.kind == Layer::Gap)
            source.replace(strokeWidth, gapStrokeWidth).replace(noFill, gapFill);
        QSvgRenderer renderer(source);
        if (!renderer.isValid()) {
            m_errors << QStringLiteral("glyph %1 is missing or damaged").arg(layer.glyph);
            return image;
        }
        const QSizeF size
            = QSizeF(renderer.viewBoxF().size()).scaled(cell.glyphSize, cell.glyphSize, Qt::KeepAspectRatio);
        const QPointF center = QPointF(cell.rect.width() / 2.0, cell.rect.height() / 2.0) + cell.shift;
        QPainter painter(&image);
        renderer.render(&painter, QRectF(center - QPointF(size.width() / 2, size.height() / 2), size));
        return image;
    }

    QByteArray glyphSource(const QString& name)
    {
        QFile file(m_glyphs.filePath(name + QStringLiteral(".svg")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /**
     * The picture with one byte a pixel, in the file and while it is decoded. Of more than 256 colours the
     * most frequent ones stay as they are; the rest, single pixels of smoothed edges, take the nearest of
     * them.
     */
    static QImage compact(const QImage& image)
    {
        QHash<QRgb, int> count;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ++count[image.pixel(x, y)];
        }
        QVector<QRgb> colors = count.keys().toVector();
        std::sort(colors.begin(), colors.end(), [&count](QRgb a, QRgb b) {
            const int countA = count[a];
            const int countB = count[b];
            return countA != countB ? countA > countB : a < b;
        });
        const QVector<QRgb> table = colors.mid(0, 256);
        QHash<QRgb, uchar> indexOf;
        for (QRgb color : qAsConst(colors))
            indexOf.insert(color, nearest(table, color));

        QImage indexed(image.size(), QImage::Format_Indexed8);
        indexed.setColorTable(table);
        for (int y = 0; y < image.height(); ++y) {
            uchar* line = indexed.scanLine(y);
            for (int x = 0; x < image.width(); ++x)
                line[x] = indexOf[image.pixel(x, y)];
        }
        return indexed;
    }

    static uchar nearest(const QVector<QRgb>& table, QRgb color)
    {
        const auto distance = [color](QRgb other) {
            // What is nearly transparent shows little of its colour.
            const QRgb a = qPremultiply(color);
            const QRgb b = qPremultiply(other);
            const auto square = [](int difference) { return difference * difference; };
            return square(qRed(a) - qRed(b)) + square(qGreen(a) - qGreen(b)) + square(qBlue(a) - qBlue(b))
                + square(qAlpha(a) - qAlpha(b));
        };
        const auto closer = [&distance](QRgb a, QRgb b) { return distance(a) < distance(b); };
        const auto found = std::min_element(table.cbegin(), table.cend(), closer);
        return static_cast<uchar>(std::distance(table.cbegin(), found));
    }

    const CPictureTable& m_table;
    QDir m_glyphs;
    QStringList m_errors;
};

bool writePng(const QImage& image, const QString& fileName)
{
    QImageWriter writer(fileName, "png");
    writer.setQuality(0); // for PNG: the highest compression, no loss
    return writer.write(image);
}

bool writeCollection(const QVector<Picture>& pictures, const QString& fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream out(&file);
    out << "<RCC>\n<qresource prefix=\"/images\">\n";
    for (const Picture& picture : pictures)
        out << "<file>" << picture.name << "</file>\n";
    out << "</qresource>\n</RCC>\n";
    out.flush();
    return file.commit();
}

int run(const QStringList& arguments)
{
    QTextStream err(stderr);
    if (arguments.size() != 4) {
        err << "usage: composepictures TABLE GLYPH-DIRECTORY OUTPUT-DIRECTORY\n";
        return 1;
    }
    CPictureTable table;
    QStringList errors = table.read(arguments[1]);
    const QDir output(arguments[3]);
    if (!output.mkpath(QStringLiteral(".")))
        errors << QStringLiteral("cannot create %1").arg(output.path());

    CPictureComposer composer(table, QDir(arguments[2]));
    if (errors.isEmpty()) {
        for (const Picture& picture : table.pictures()) {
            if (!writePng(composer.compose(picture), output.filePath(picture.name)))
                errors << QStringLiteral("cannot write %1").arg(picture.name);
        }
    }
    errors += composer.errors();
    // Last, because the build takes this file as the sign that all pictures are there.
    if (errors.isEmpty()
        && !writeCollection(table.pictures(), output.filePath(QStringLiteral("pictures.qrc"))))
        errors << QStringLiteral("cannot write pictures.qrc");
    for (const QString& error : errors)
        err << "composepictures: " << error << '\n';
    return errors.isEmpty() ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    return run(QCoreApplication::arguments());
}
