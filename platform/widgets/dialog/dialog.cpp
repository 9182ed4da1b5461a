#include "widgets/dialog/dialog.h"

#include "widgets/keywatch/keywatch.h"
#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/touchregion/touchregion.h"
#include "widgets/widget/treecall.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int PressShown = 100; // ms that a button pressed by key looks pressed

int scrimOpacity()
{
    return std::clamp(CWidgetStyle::getMetric(CWidgetStyle::MetricScrimOpacity), 0, 254);
}

/** The veil over the window behind a dialog. */
class CScrim : public QWidget
{
public:
    explicit CScrim(QWidget* window)
        : QWidget(window)
    {
        setObjectName(QStringLiteral("dialogScrim"));
        setAttribute(Qt::WA_NoSystemBackground);
        setGeometry(window->rect());
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.fillRect(event->rect(), QColor(0, 0, 0, scrimOpacity()));
    }
};

/** Every pixel that the rounded rectangle covers, if only in part. */
QRegion roundedRegion(const QRect& rect, int radius)
{
    QRegion region = rect.adjusted(0, radius, 0, -radius);
    for (int y = 0; y < radius; ++y) {
        const int up = radius - 1 - y; // from the row's inner edge to the corner's centre
        const int inset = radius - int(std::ceil(std::sqrt(double(radius * radius - up * up))));
        const QRect row(rect.left() + inset, rect.top() + y, rect.width() - 2 * inset, 1);
        region += row;
        region += row.translated(0, rect.height() - 1 - 2 * y);
    }
    return region;
}

/** How far `to` lies from `from` in an arrow key's direction, and how far aside; no way when not in it. */
struct Way
{
    int ahead;
    int aside;
};

Way wayTo(const QPoint& from, const QPoint& to, int arrowKey)
{
    const QPoint d = to - from;
    switch (arrowKey) {
    case Qt::Key_Left:
        return {-d.x(), std::abs(d.y())};
    case Qt::Key_Right:
        return {d.x(), std::abs(d.y())};
    case Qt::Key_Up:
        return {-d.y(), std::abs(d.x())};
    default:
        return {d.y(), std::abs(d.x())};
    }
}

} // namespace

CDialog::CDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    installTouchRegion();
    installKeyWatch();
    installEventFilter(qApp); // the application may hear what a dialog keeps for itself
    setModal(true);
    m_frame.setBackgroundColor(CWidgetStyle::ColorDialog);
}

CDialog::~CDialog()
{
    delete m_pScrim;
}

void CDialog::setBackgroundColor(const CThemeColor& color)
{
    m_frame.setBackgroundColor(color);
    update();
}

void CDialog::setBorderColor(const CThemeColor& color)
{
    m_frame.setBorderColor(color);
    roundCorners();
}

void CDialog::setBorderWidth(int width)
{
    m_frame.setBorderWidths(QMargins(width, width, width, width));
    setContentsMargins(m_frame.borderWidths()); // layouts keep off the border
    roundCorners();
}

void CDialog::setTitleLabel(CLabel* title)
{
    m_pHeading = title;
    roundCorners();
}

QRect CDialog::innerRect() const
{
    return rect().marginsRemoved(m_frame.borderWidths());
}

CPushButton* CDialog::markedButton() const
{
    const QList<CPushButton*> buttons = touchableButtons();
    const auto marked = std::find_if(
        buttons.begin(), buttons.end(), [](const CPushButton* button) { return button->hasArrowKeyFocus(); });
    return marked == buttons.end() ? nullptr : *marked;
}

void CDialog::translate()
{
    callInTree(this, "translate()");
}

void CDialog::updateWidgetStyle()
{
    roundCorners();
    callInTree(this, "updateWidgetStyle()");
}

void CDialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_frame.paint(painter, rect());
    const int radius = cornerRadius();
    if (radius == 0)
        return;
    // The window's shape has whole pixels only. Those on the edge are blended with what is mostly behind.
    QPainterPath corners;
    corners.addRect(rect());
    corners.addRoundedRect(rect(), radius, radius);
    const QColor ground = CWidgetStyle::getColor(CWidgetStyle::ColorScreen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(corners, parentWidget() ? ground.darker(100 * 255 / (255 - scrimOpacity())) : ground);
}

void CDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    roundCorners();
}

void CDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        if (!testAttribute(Qt::WA_Moved)) {
            const QPoint origin
                = parentWidget() ? parentWidget()->window()->mapToGlobal(QPoint(0, 0)) : QPoint(0, 0);
            const QPoint center
                = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea).center() + origin;
            move(center - rect().center());
        }
        dimWindowBehind();
    }
    QDialog::showEvent(event);
    if (!event->spontaneous())
        emit popOn();
}

void CDialog::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    delete m_pScrim;
    setAside(false);
    if (CPushButton* marked = markedButton())
        marked->setArrowKeyFocus(false);
    emit popOff();
}

void CDialog::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        moveMarker(event->key());
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A held key that opened the box must not answer it as well.
        if (!isKeyRepetition(*event))
            pressMarked();
        break;
    default:
        passFunctionKeyOn(event); // QDialog's own meanings (Escape closes) do not hold here
        break;
    }
    event->accept();
}

void CDialog::passFunctionKeyOn(QKeyEvent* event)
{
    if (event->key() >= Qt::Key_F1 && event->key() <= Qt::Key_F4 && parentWidget())
        QCoreApplication::sendEvent(parentWidget()->window(), event);
}

void CDialog::setAside(bool aside)
{
    if (m_isAside == aside || !windowHandle())
        return;
    m_isAside = aside;
    if (aside) {
        // Hiding it would answer it, and it has to go on hearing the keys for the window that it blocks.
        windowHandle()->installEventFilter(this);
    } else {
        windowHandle()->removeEventFilter(this);
    }
    shapeWindow();
    emit asideChanged();
}

bool CDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_isAside || watched != windowHandle())
        return QDialog::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        passFunctionKeyOn(static_cast<QKeyEvent*>(event));
    return event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease
        || event->type() == QEvent::ShortcutOverride;
}

void CDialog::moveMarker(int arrowKey)
{
    const QList<CPushButton*> buttons = touchableButtons();
    if (buttons.isEmpty())
        return;
    CPushButton* from = markedButton();
    // A button that was hidden with its marker must not come back with a second one.
    const auto mark = [this](const CPushButton* wanted) {
        for (CPushButton* button : findChildren<CPushButton*>())
            button->setArrowKeyFocus(button == wanted);
    };
    if (!from) {
        mark(buttons.first());
        return;
    }
    const auto center
        = [this](const CPushButton* button) { return button->mapTo(this, button->rect().center()); };
    CPushButton* best = nullptr;
    int bestCost = 0;
    for (CPushButton* button : buttons) {
        const Way way = wayTo(center(from), center(button), arrowKey);
        const int cost = way.ahead + 2 * way.aside;
        if (button == from || way.ahead <= 0 || way.aside > 2 * way.ahead || (best && cost >= bestCost))
            continue;
        best = button;
        bestCost = cost;
    }
    if (best)
        mark(best);
}

QList<CPushButton*> CDialog::touchableButtons() const
{
    QList<CPushButton*> buttons = findChildren<CPushButton*>();
    buttons.erase(std::remove_if(buttons.begin(), buttons.end(),
                      [this](const CPushButton* button) {
                          return !button->isVisibleTo(this) || !button->isEnabled()
                              || button->testAttribute(Qt::WA_TransparentForMouseEvents);
                      }),
        buttons.end());
    return buttons;
}

void CDialog::pressMarked()
{
    CPushButton* marked = markedButton();
    if (marked && !isTouchDropped(marked))
        marked->animateClick(PressShown);
}

int CDialog::cornerRadius() const
{
    const QSize page = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionPageFrame).size();
    const bool isPage = width() >= page.width() || height() >= page.height();
    return isPage ? 0 : CWidgetStyle::getMetric(CWidgetStyle::MetricDialogRadius);
}

void CDialog::roundCorners()
{
    const QMargins border = m_frame.borderWidths();
    const int inside = std::max(0, cornerRadius() - border.top());
    m_frame.setRounded(inside, CFrameStyle::AllCorners);
    if (m_pHeading) {
        m_pHeading->setBorderColor(m_frame.borderColor());
        m_pHeading->setRounded(inside, CFrameStyle::TopCorners);
    }
    shapeWindow();
    update();
}

void CDialog::shapeWindow()
{
    const int radius = cornerRadius();
    if (m_isAside)
        setMask(QRegion(-1, -1, 1, 1));
    else if (radius > 0)
        setMask(roundedRegion(rect(), radius));
    else
        clearMask();
}

void CDialog::dimWindowBehind()
{
    if (!parentWidget() || m_pScrim)
        return;
    QWidget* window = parentWidget()->window();
    // Boxes that come up over each other must not darken the window twice.
    if (window->findChild<QWidget*>(QStringLiteral("dialogScrim"), Qt::FindDirectChildrenOnly))
        return;
    m_pScrim = new CScrim(window);
    m_pScrim->show();
}
