// Driving the shell with the hardware keys: the arrow keys move a focus marker to the nearest control in
// their direction, Enter touches the marked control.

#include "mainwindow.h"

#include "advancemenu.h"
#include "focussearch.h"
#include "services/globalsettingutils.h"
#include "settingmoremenu.h"
#include "systemsettingsmenu.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/toolbox/toolbox.h"
#include "widgets/touchregion/touchregion.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QDebug>
#include <QKeyEvent>
#include <QThread>

#include <algorithm>

namespace {

constexpr qint64 KEY_REPEAT_LIMIT = 221; // ms; a key that comes sooner is its own repeat
constexpr unsigned long TAP_TIME = 100; // ms

struct ArrowKey
{
    int key;
    CFocusSearch::DetectDirection direction;
    const char* log;
};

constexpr ArrowKey ARROW_KEYS[] = {
    {Qt::Key_Left, CFocusSearch::DetectLeft, "Key Left"},
    {Qt::Key_Up, CFocusSearch::DetectUp, "Key Top"},
    {Qt::Key_Right, CFocusSearch::DetectRight, "Key Right"},
    {Qt::Key_Down, CFocusSearch::DetectDown, "Key Down"},
};

} // namespace

void CMainWindow::keyPressEvent(QKeyEvent* event)
{
    CWidget::keyPressEvent(event);
    // Forwarded by the application, and passed on by a field or a dialog: one press may come more than once.
    const KeyMoment press = momentOf(*event);
    if (isSameMoment(press, m_lastPress))
        return;
    m_lastPress = press;
    const int key = event->key();
    qDebug().noquote() << QStringLiteral("Key:%1").arg(key);

    // Restarted by ignored presses too: a held key stays one press for as long as it is held. Its first
    // repetition comes later than the limit, and on a busy machine any of them may.
    const bool isRepeat = isKeyRepetition(*event)
        || (m_keyEventTime.isValid() && m_keyEventTime.elapsed() < KEY_REPEAT_LIMIT);
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
    if (!widget || !widget->isVisible() || isTouchDropped(widget))
        return;
    const QPointF local = widget->rect().center();
    const QPointF inWindow = widget->mapTo(widget->window(), local.toPoint());
    const QPointF onScreen = widget->mapToGlobal(local.toPoint());
    const auto post = [&](QEvent::Type type, Qt::MouseButtons buttons) {
        QApplication::postEvent(widget,
            new QMouseEvent(type, local, inWindow, onScreen, Qt::LeftButton, buttons, Qt::NoModifier));
    };
    post(QEvent::MouseButtonPress, Qt::LeftButton);
    // The press is handled after the sleep; its look has to be on the screen before. What the press itself
    // sets is left to it: a disabled button does not take it, and would look pressed for ever.
    auto* button = qobject_cast<QAbstractButton*>(widget);
    const bool showPress = button && button->isEnabled() && !button->isDown();
    if (showPress) {
        button->setDown(true);
        button->repaint();
        flushScreen();
    }
    QThread::msleep(TAP_TIME);
    if (showPress)
        button->setDown(false);
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
    if (hasWidgetDetected(direction, CFocusSearch::LinearDetect))
        return;
    qDebug("Radial detect");
    hasWidgetDetected(direction, CFocusSearch::RadialDetect);
}

QWidget* CMainWindow::firstFocusWidget()
{
    const QRect page = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea);
    const CFocusSearch search(this);
    for (QObject* child : search.allChildren(this)) {
        auto* button = qobject_cast<QPushButton*>(child);
        if (button && button->isEnabled() && button->isVisibleTo(this)
            && page.contains(search.globalRect(button).center()))
            return button;
    }
    for (QObject* child : search.allChildren(m_pToolBox)) {
        auto* button = qobject_cast<QPushButton*>(child);
        if (button && button->isVisibleTo(this))
            return button;
    }
    return nullptr;
}

bool CMainWindow::hasWidgetDetected(DetectDirection direction, DetectType type)
{
    QWidget* widget = CFocusSearch(this, m_arrowKeyStepLen).detect(m_pPrevFocusWidget, direction, type);
    if (!widget)
        return false;
    setWidgetFocus(m_pPrevFocusWidget, false);
    m_pPrevFocusWidget = widget;
    setWidgetFocus(widget, true);
    return true;
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
