#include "widgets/widgetstyle/widgetstyle.h"

#include "files/plainfile.h"
#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/theme.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QPainter>

static_assert(CWidgetStyle::ColorCount == CTheme::ColorSlots, "one slot a colour code");
static_assert(CWidgetStyle::MetricCount == CTheme::MetricSlots, "one slot a metric");
static_assert(CWidgetStyle::FontCount == CTheme::FontSlots, "one slot a font kind");

namespace {

constexpr int ButtonPictureWidth = 120;
constexpr int ButtonPictureHeight = 42;

CTheme builtInTheme()
{
    CTheme theme;
    const QString name = QStringLiteral(":/conf/widget-style.xml");
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly) || !readTheme(file, name, theme))
        qCritical() << "The built-in theme cannot be read";
    return theme;
}

CTheme& theme()
{
    static CTheme values = builtInTheme();
    return values;
}

// Drawn when first asked for; the few pages that use the pictures share them.
std::array<QPixmap, CTheme::ButtonSlots>& buttonPictures()
{
    static std::array<QPixmap, CTheme::ButtonSlots> pictures;
    return pictures;
}

size_t buttonSlot(int status)
{
    return status >= 0 && status < CTheme::ButtonSlots ? size_t(status) : 0;
}

} // namespace

bool CWidgetStyle::initialize(const QString& fileName)
{
    QFile file(fileName);
    QString reason;
    if (!openPlainFile(file, &reason)) {
        qWarning().noquote() << "Theme" << fileName << "cannot be opened:" << reason;
        return false;
    }
    if (!readTheme(file, fileName, theme()))
        return false;
    buttonPictures().fill(QPixmap());
    return true;
}

void CWidgetStyle::setWidgetStyle(const QString& fileName)
{
    theme() = builtInTheme();
    buttonPictures().fill(QPixmap());
    initialize(fileName);
}

QRect CWidgetStyle::getScreenRegion(int region)
{
    return region >= 0 && region < CTheme::RegionSlots ? theme().regions[size_t(region)] : QRect();
}

QColor CWidgetStyle::getColor(int code)
{
    return code >= 0 && code < ColorCount ? theme().colors[size_t(code)] : QColor();
}

QFont CWidgetStyle::getFont(int kind)
{
    const CTheme::FontLook& look = theme().fonts[size_t(kind >= 0 && kind < FontCount ? kind : FontText)];
    QFont font = QApplication::font();
    font.setPixelSize(look.pixelSize);
    font.setWeight(look.bold ? QFont::Bold : QFont::Normal);
    return font;
}

QPixmap CWidgetStyle::getButtonPixmap(int status)
{
    QPixmap& picture = buttonPictures()[buttonSlot(status)];
    if (picture.isNull()) {
        picture = QPixmap(ButtonPictureWidth, ButtonPictureHeight);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        CStylePainter::paintButton(painter, picture.rect(), status);
    }
    return picture;
}

int CWidgetStyle::buttonStatusOf(const QPixmap& picture)
{
    const auto& pictures = buttonPictures();
    for (size_t i = 0; i < pictures.size(); ++i) {
        if (!picture.isNull() && pictures[i].cacheKey() == picture.cacheKey())
            return int(i);
    }
    return -1;
}

CWidgetStyle::ButtonLook CWidgetStyle::getButtonLook(int status)
{
    const CTheme::ButtonLook& look = theme().buttons[buttonSlot(status)];
    return {getColor(look.fill), getColor(look.text), getColor(look.frame), look.frameWidth, look.picture};
}

QColor CWidgetStyle::getEntryColor(int type)
{
    return theme().entries[size_t(type >= 0 && type < CTheme::EntrySlots ? type : 1)];
}

int CWidgetStyle::getMetric(Metric metric)
{
    return theme().metrics[size_t(metric)];
}
