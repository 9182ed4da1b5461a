#pragma once

#include <QImage>
#include <QRect>
#include <QString>

/**
 * Reads a PNG picture, or a part of it, and nothing else: Qt's own loading calls ask every image plug-in on
 * the unit first, and load their libraries for it, which takes several milliseconds of the start-up.
 *
 * @param name file or resource name
 * @param part rectangle in pixels; a null rectangle reads the whole picture
 * @return a null image when there is no such picture, it is no PNG, or the part lies outside
 */
QImage readPicture(const QString& name, const QRect& part = QRect());
