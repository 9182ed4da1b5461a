#pragma once

#include "widgets/keypad/keypadfactory.h"

#include <QRect>
#include <QVector>

/**
 * The keys of a pad's page, row by row. A row is a string: printable characters are typed, the others are
 * CKeyPadKey actions by number.
 */
struct KeyPadPage
{
    int columns; ///< character keys that fill a row
    QVector<QString> rows;
};

/** The pages of a kind of pad; the page key goes through them. */
const QVector<KeyPadPage>& keyPadPages(CKeyPadFactory::KeyPadType type);

/**
 * Places of a row's keys in its rectangle. A character key is one column wide; shift, backspace and space
 * share what is left over, a row without them stands in the middle.
 */
QVector<QRect> keyPlaces(const QString& row, int columns, const QRect& area, int gap);
