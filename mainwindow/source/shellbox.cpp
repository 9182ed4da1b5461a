#include "shellbox.h"

#include "widgets/messagebox/messagebox.h"
#include "widgets/widgetstyle/widgetstyle.h"
#include "windowhost.h"

#include <QDebug>
#include <QScopeGuard>

#include <bitset>
#include <iterator>

namespace {

constexpr int LOGGED = 200; // characters
constexpr int AsBuilt = -1; // as the library makes it

/** How a box looks: colour codes of the theme, text sizes in pixels. */
struct BoxLook
{
    ShellBox box;
    CMessageBox::Buttons::Int buttons;
    int titleBackground;
    int titleColor;
    int titleSize;
    int messageColor;
    int messageSize;
};

constexpr int Red = 7;
constexpr BoxLook LOOKS[] = {
    {ShellBox::Calibration, CMessageBox::Ok | CMessageBox::Cancel, Red, 2, 20, 9, AsBuilt},
    {ShellBox::NoUsbDrive, CMessageBox::Ok, CWidgetStyle::ColorAlert, AsBuilt, 20, 9, AsBuilt},
    {ShellBox::NotAvailable, CMessageBox::Ok, AsBuilt, AsBuilt, 20, 9, AsBuilt},
    {ShellBox::PluginError, CMessageBox::Ok, CWidgetStyle::ColorAlert, AsBuilt, AsBuilt, AsBuilt, AsBuilt},
    {ShellBox::ScreenLimit, CMessageBox::Ok, AsBuilt, AsBuilt, 20, AsBuilt, 16},
    {ShellBox::SystemFailure, CMessageBox::Ok, Red, AsBuilt, 24, 9, 20},
};

const BoxLook& lookOf(ShellBox box)
{
    return LOOKS[int(box)];
}

constexpr bool isInOrder()
{
    for (int i = 0; i < int(std::size(LOOKS)); ++i) {
        if (int(LOOKS[i].box) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder(), "a row a box, in the order of the enumeration");

} // namespace

bool execShellBox(ShellBox kind, CWindowHost& host, const QString& title, const QString& text)
{
    // One at a time of each kind: what asks for it while it is up asks from inside its event loop, and boxes
    // that nobody has answered would pile up.
    static std::bitset<std::size(LOOKS)> up;
    const auto index = size_t(kind);
    if (up[index]) {
        qWarning("Box is up already; not shown: %s", qPrintable(text.left(LOGGED)));
        return false;
    }
    up.set(index);
    const auto gone = qScopeGuard([index] { up.reset(index); });

    const BoxLook& look = lookOf(kind);
    CMessageBox box(title, text, CMessageBox::Buttons(look.buttons), host.dialogParent());
    const auto set = [&box](auto setter, int value) {
        if (value != AsBuilt)
            (box.*setter)(value);
    };
    set(&CMessageBox::setTitleBackgroundColor, look.titleBackground);
    set(&CMessageBox::setTitleTextColor, look.titleColor);
    set(&CMessageBox::setTitleTextSize, look.titleSize);
    set(&CMessageBox::setMessageTextColor, look.messageColor);
    set(&CMessageBox::setMessageTextSize, look.messageSize);
    // What happens behind a test application waits for the shell; a failure of the unit does not.
    if (kind != ShellBox::SystemFailure && host.isTestAppInFront())
        QObject::connect(&box, &CDialog::popOn, &box, [&box] { box.setAside(true); });
    host.moveToWorkingAreaCenter(&box);
    return box.exec() == CMessageBox::Ok;
}
