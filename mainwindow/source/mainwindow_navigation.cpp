// Driving the shell with the hardware keys: the arrow keys move a focus marker to the nearest control in
// their direction, Enter touches the marked control.

#include "mainwindow.h"

#include "advancemenu.h"
#include "services/globalsettingutils.h"
#include "settingmoremenu.h"
#include "systemsettingsmenu.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QLineF>
#include <QThread>

#include <algorithm>

namespace {

constexpr qint64 KEY_REPEAT_LIMIT = 221; // ms; a key that comes sooner is its own repeat
constexpr unsigned long TAP_TIME = 100; // ms
constexpr float FARTHEST = 800.0F; // pixels from strip centre to candidate centre
constexpr int RADIAL_GAP = 5; // pixels between the widget and a radial strip
constexpr int SCREEN_WIDTH = 800;
constexpr int SCREEN_HEIGHT = 480;

/** Types of the control library that only group others or cannot be touched. */
bool isPassive(const CWidget* widget)
{
    return widget->typeCode() == CWidget::TypeLabel || widget->typeCode() == CWidget::TypePlain;
}

struct ArrowKey
{
    int key;
    CMainWindow::DetectDirection direction;
    const char* log;
};

constexpr ArrowKey ARROW_KEYS[] = {
    {Qt::Key_Left, CMainWindow::DetectLeft, "Key Left"},
    {Qt::Key_Up, CMainWindow::DetectUp, "Key Top"},
    {Qt::Key_Right, CMainWindow::DetectRight, "Key Right"},
    {Qt::Key_Down, CMainWindow::DetectDown, "Key Down"},
};

} // namespace

void CMainWindow::keyPressEvent(QKeyEvent* event)
{
    CWidget::keyPressEvent(event);
    const int key = event->key();
    qDebug().noquote() << QStringLiteral("Key:%1").arg(key);

    // Restarted by ignored presses too: a held key stays one press for as long as it is held.
    const bool isRepeat = m_keyEventTime.isValid() && m_keyEventTime.elapsed() < KEY_REPEAT_LIMIT;
    m_keyEventTime.start();
    if (isRepeat || (m_winVisibleReason == TestAppForeground && key != Qt::Key_F4) || key < Qt::Key_Escape
        || key > Qt::Key_F4)
        return;

    switch (key) {
    case Qt::Key_Return:
        tapFocusWidget();
        break;
    case Qt::Key_Home:
        triggerHome();
        break;
    case Qt::Key_F1:
        miscutils::CGlobalSettingUtils::GetStorageSetting();
        break;
    case Qt::Key_F4:
        lockScreen();
        break;
    default:
        for (const ArrowKey& arrow : ARROW_KEYS) {
            if (arrow.key == key) {
                qDebug("%s", arrow.log);
                moveFocus(arrow.direction);
            }
        }
        break;
    }
}

void CMainWindow::mousePressEvent(QMouseEvent* event)
{
    CWidget::mousePressEvent(event);
    qDebug().noquote() << QStringLiteral("MousePress:(%1, %2)").arg(event->x()).arg(event->y());
    wakeupScreen();
}

void CMainWindow::tapFocusWidget()
{
    QWidget* widget = m_pPrevFocusWidget;
    if (!widget)
        return;
    const QPointF local = widget->rect().center();
    const QPointF inWindow = widget->mapTo(widget->window(), local.toPoint());
    const QPointF onScreen = widget->mapToGlobal(local.toPoint());
    const auto post = [&](QEvent::Type type, Qt::MouseButtons buttons) {
        QApplication::postEvent(widget,
            new QMouseEvent(type, local, inWindow, onScreen, Qt::LeftButton, buttons, Qt::NoModifier));
    };
    post(QEvent::MouseButtonPress, Qt::LeftButton);
    // The press is handled after the sleep; its look has to be on the screen before.
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->setDown(true);
        button->repaint();
        flushScreen();
    }
    QThread::msleep(TAP_TIME);
    post(QEvent::MouseButtonRelease, Qt::NoButton);
}

void CMainWindow::moveFocus(DetectDirection direction)
{
    if (!m_pPrevFocusWidget || !m_pPrevFocusWidget->isVisibleTo(this)) {
        clearFocusWidget();
        if (QWidget* first = firstFocusWidget()) {
            m_pPrevFocusWidget = first;
            setWidgetFocus(first, true);
        }
        return;
    }
    if (hasWidgetDetected(direction, LinearDetect))
        return;
    qDebug("Radial detect");
    hasWidgetDetected(direction, RadialDetect);
}

QWidget* CMainWindow::firstFocusWidget()
{
    const QRect page = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea);
    QList<QObject*> children;
    allChildren(this, children);
    for (QObject* child : qAsConst(children)) {
        auto* button = qobject_cast<QPushButton*>(child);
        if (button && button->isVisibleTo(this) && page.contains(globalRect(button).center()))
            return button;
    }
    children.clear();
    allChildren(m_pToolBox, children);
    for (QObject* child : qAsConst(children)) {
        auto* button = qobject_cast<QPushButton*>(child);
        if (button && button->isVisibleTo(this))
            return button;
    }
    return nullptr;
}

bool CMainWindow::hasWidgetDetected(DetectDirection direction, DetectType type)
{
    for (int step = 1;; ++step) {
        const QRect strip = getDetectRect(m_pPrevFocusWidget, step, direction, type);
        if (!canDetectTo(strip))
            return false;
        QWidget* widget = findChildAt(strip);
        if (widget && widget != m_pPrevFocusWidget) {
            setWidgetFocus(m_pPrevFocusWidget, false);
            m_pPrevFocusWidget = widget;
            setWidgetFocus(widget, true);
            return true;
        }
    }
}

QRect CMainWindow::getDetectRect(QWidget* widget, int step, DetectDirection direction, DetectType type)
{
    const QRect g = globalRect(widget);
    const int length = step * m_arrowKeyStepLen;
    // The right and bottom edges are the last pixels inside: linear strips there overlap the widget by one.
    if (type == LinearDetect) {
        switch (direction) {
        case DetectLeft:
            return {g.left() - length, g.top(), length, g.height()};
        case DetectUp:
            return {g.left(), g.top() - length, g.width(), length};
        case DetectRight:
            return {g.right(), g.top(), length, g.height()};
        case DetectDown:
            return {g.left(), g.bottom(), g.width(), length};
        }
    }
    if (type == RadialDetect) {
        switch (direction) {
        case DetectLeft:
            return {g.left() - length - RADIAL_GAP, 1, length, SCREEN_HEIGHT - 1};
        case DetectUp:
            return {1, g.top() - RADIAL_GAP - length, SCREEN_WIDTH - 2, length};
        case DetectRight:
            return {g.right() + RADIAL_GAP, 1, length, SCREEN_HEIGHT - 1};
        case DetectDown:
            return {1, g.bottom() + RADIAL_GAP, SCREEN_WIDTH - 2, length};
        }
    }
    return {-1, -1, SCREEN_WIDTH + 1, SCREEN_HEIGHT + 1}; // never inside the window: the search ends at once
}

bool CMainWindow::canDetectTo(const QRect& strip) const
{
    // The window stands for the whole screen, the strip of a bottom bar included: radial strips are that
    // high.
    return QRect(0, 0, width(), height()).united(QRect(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT)).contains(strip);
}

QWidget* CMainWindow::findChildAt(const QRect& strip)
{
    float bestDistance = FARTHEST;
    QWidget* best = nullptr;
    QRect bestRect;

    QList<QObject*> children;
    allChildren(this, children);
    for (QObject* child : qAsConst(children)) {
        auto* widget = static_cast<QWidget*>(child);
        const auto* control = qobject_cast<CWidget*>(widget);
        if (widget == m_pPrevFocusWidget || !widget->isVisibleTo(this)
            || (control ? isPassive(control) : !qobject_cast<QPushButton*>(widget)))
            continue;
        const QRect rect = globalRect(widget);
        // A composed control only wins inside a candidate found before it: the marker stays on the enclosing
        // control unless a nested one is nearer.
        if (!rect.intersects(strip) || (control && !bestRect.contains(rect)))
            continue;
        const float length = distance(rect.center(), strip.center());
        if (length < bestDistance) {
            bestDistance = length;
            best = widget;
            bestRect = rect;
        }
    }
    return best;
}

QRect CMainWindow::globalRect(QWidget* widget) const
{
    Q_ASSERT_X(widget, "CMainWindow::globalRect", "pWidget != NULL");
    return {widget->mapTo(this, widget->rect().topLeft()), widget->mapTo(this, widget->rect().bottomRight())};
}

float CMainWindow::distance(const QPoint& from, const QPoint& to)
{
    return float(QLineF(from, to).length());
}

void CMainWindow::allChildren(QObject* parent, QList<QObject*>& children)
{
    for (QObject* child : parent->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow())
            continue;
        children.append(child);
        allChildren(child, children);
    }
}

void CMainWindow::setWidgetFocus(QObject* widget, bool on)
{
    if (!widget)
        qDebug("Can not set NULL widget focus.");
    else if (auto* control = qobject_cast<CWidget*>(widget))
        control->setArrowKeyFocus(on);
    else if (auto* button = qobject_cast<CPushButton*>(widget))
        button->setArrowKeyFocus(on);
}

void CMainWindow::clearFocusWidget()
{
    if (m_pPrevFocusWidget)
        setWidgetFocus(m_pPrevFocusWidget, false);
    m_pPrevFocusWidget = nullptr;
}

void CMainWindow::resetFocusWidget()
{
    if (m_pAdvMenu->isVisible())
        m_pAdvMenu->clearFocus();
    else if (m_pSettingMenu->isVisible())
        m_pSettingMenu->clearFocus();
    else if (m_pSettingMoreMenu->isVisible())
        m_pSettingMoreMenu->clearFocus();
    setWidgetFocus(m_pPrevFocusWidget, true);
}
