#include "widgets/dialog/dialog.h"

#include "widgets/keywatch/keywatch.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/touchregion/touchregion.h"
#include "widgets/widget/treecall.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int PressShown = 100; // ms that a button pressed by key looks pressed

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
        painter.fillRect(
            event->rect(), QColor(0, 0, 0, CWidgetStyle::getMetric(QStringLiteral("scrimOpacity"), 90)));
    }
};

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

void CDialog::setBackgroundColor(const QColor& color)
{
    m_frame.setBackgroundColor(color);
    update();
}

void CDialog::setBackgroundColor(int colorCode)
{
    m_frame.setBackgroundColor(colorCode);
    update();
}

void CDialog::setBorderColor(const QColor& color)
{
    m_frame.setBorderColor(color);
    update();
}

void CDialog::setBorderColor(int colorCode)
{
    m_frame.setBorderColor(colorCode);
    update();
}

void CDialog::setBorderWidth(int width)
{
    m_frame.setBorderWidths(QMargins(width, width, width, width));
    setContentsMargins(m_frame.borderWidths()); // layouts keep off the border
    update();
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
    update();
    callInTree(this, "updateWidgetStyle()");
}

void CDialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_frame.paint(painter, rect());
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
        setMask(QRegion(-1, -1, 1, 1));
        windowHandle()->installEventFilter(this);
    } else {
        windowHandle()->removeEventFilter(this);
        clearMask();
    }
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
