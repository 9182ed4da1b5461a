#include "widgets/keypad/keypadlayout.h"

#include "widgets/keypad/keypadkey.h"

#include <algorithm>

namespace {

// Widths are counted in half columns.
constexpr int CharacterWidth = 2;
constexpr int PageKeyWidth = 3;

bool fillsRow(QChar key)
{
    return key == QLatin1Char(' ') || key == QChar(CKeyPadKey::ToggleShift)
        || key == QChar(CKeyPadKey::Backspace);
}

int widthOf(QChar key)
{
    return key == QChar(CKeyPadKey::ChangePage) ? PageKeyWidth : CharacterWidth;
}

// \1 shift, \2 other page, \3 backspace, \4 and \5 cursor left and right
const KeyPadPage LetterPage{10,
    {QStringLiteral("qwertyuiop"), QStringLiteral("asdfghjkl"), QStringLiteral("\1zxcvbnm\3"),
        QStringLiteral("\2,.-_ \4\5")}};
const KeyPadPage SymbolPage{13,
    {QStringLiteral("1234567890-+="), QStringLiteral("!@#$%^&*()_/\\"), QStringLiteral(";:'\"`~<>[]{}\3"),
        QStringLiteral("\2,.?| \4\5")}};
const KeyPadPage NumberPage{3,
    {QStringLiteral("789"), QStringLiteral("456"), QStringLiteral("123"), QStringLiteral("-0."),
        QStringLiteral("\4\5\3")}};
const KeyPadPage AddressPage{11,
    {QStringLiteral("1234567890\3"), QStringLiteral("qwertyuiop-"), QStringLiteral("asdfghjkl:."),
        QStringLiteral("\4zxcvbnm_%\5")}};

} // namespace

const QVector<KeyPadPage>& keyPadPages(CKeyPadFactory::KeyPadType type)
{
    static const QVector<KeyPadPage> text{LetterPage, SymbolPage};
    static const QVector<KeyPadPage> number{NumberPage};
    static const QVector<KeyPadPage> address{AddressPage};
    switch (type) {
    case CKeyPadFactory::KeyPadNumber:
        return number;
    case CKeyPadFactory::KeyPadAddress:
        return address;
    case CKeyPadFactory::KeyPadText:
    case CKeyPadFactory::KeyPadPassword:
        break;
    }
    return text;
}

QVector<QRect> keyPlaces(const QString& row, int columns, const QRect& area, int gap)
{
    int fillers = 0, taken = 0;
    for (const QChar key : row) {
        if (fillsRow(key))
            ++fillers;
        else
            taken += widthOf(key);
    }
    const int total = columns * CharacterWidth;
    const int spare = std::max(0, total - taken);
    const double unit = double(area.width() + gap) / total;

    QVector<QRect> places;
    double left = fillers == 0 ? spare / 2.0 : 0.0; // in half columns
    for (const QChar key : row) {
        const double width = fillsRow(key) ? double(spare) / fillers : widthOf(key);
        const int from = area.left() + int(left * unit);
        const int to = area.left() + int((left + width) * unit) - gap;
        places << QRect(from, area.top(), to - from, area.height());
        left += width;
    }
    return places;
}
