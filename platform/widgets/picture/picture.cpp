#include "picture.h"

#include <QImageReader>

QImage readPicture(const QString& name, const QRect& part)
{
    QImageReader reader(name, "png");
    reader.setAutoDetectImageFormat(false);
    QImage whole = reader.read();
    if (part.isNull())
        return whole;
    // Outside the picture QImage::copy() would fill.
    const QRect inside = part.intersected(whole.rect());
    return inside.isEmpty() ? QImage() : whole.copy(inside);
}
