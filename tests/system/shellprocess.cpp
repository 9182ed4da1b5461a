#include "shellprocess.h"

#include <QTest>

#include <X11/Xatom.h>

#include <csignal>

namespace {

constexpr int START_LIMIT = 10000; // ms
const QColor TOP_BAR(181, 199, 239);

void searchTree(Display* display, Window window, Atom atom, ShellWindow& found)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(
            display, window, atom, 0, 32, False, XA_INTEGER, &type, &format, &count, &rest, &data)
            == 0
        && count == 1) {
        Window child = 0;
        int x = 0;
        int y = 0;
        XTranslateCoordinates(display, window, DefaultRootWindow(display), 0, 0, &x, &y, &child);
        found = {window, {x, y}, int(*reinterpret_cast<long*>(data))};
    }
    if (data)
        XFree(data);
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned int childCount = 0;
    if (XQueryTree(display, window, &root, &parent, &children, &childCount) && children) {
        for (unsigned int i = 0; i < childCount && !found.id; ++i)
            searchTree(display, children[i], atom, found);
        XFree(children);
    }
}

} // namespace

ShellWindow findShellWindow(const CXScreen& screen)
{
    ShellWindow found;
    searchTree(screen.display(), DefaultRootWindow(screen.display()),
        XInternAtom(screen.display(), "_TAVOPROP_APPINDEX", False), found);
    return found;
}

CShellProcess::CShellProcess(const QStringList& environment)
{
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    for (const QString& entry : environment)
        all.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    m_process.setProcessEnvironment(all);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(QStringLiteral(MAINFRAME_PROGRAM), QStringList());
}

CShellProcess::~CShellProcess()
{
    if (isRunning()) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

QString CShellProcess::log()
{
    m_log += m_process.readAll();
    return QString::fromUtf8(m_log);
}

bool CShellProcess::waitForLog(const QString& text)
{
    QElapsedTimer clock;
    clock.start();
    while (!log().contains(text)) {
        if (clock.elapsed() > START_LIMIT || (!isRunning() && !m_process.bytesAvailable()))
            return log().contains(text);
        m_process.waitForReadyRead(50);
    }
    return true;
}

bool CShellProcess::waitForHome()
{
    const CXScreen screen;
    return QTest::qWaitFor(
        [&] {
            return screen.pixel({560, 2}) == TOP_BAR && screen.pixel({400, 60}) == QColor(Qt::white);
        },
        START_LIMIT);
}

bool CShellProcess::waitForEnd(int milliseconds)
{
    return m_process.state() == QProcess::NotRunning || m_process.waitForFinished(milliseconds);
}

void CShellProcess::sendSignal(int sig) const
{
    ::kill(pid_t(m_process.processId()), sig);
}

int CShellProcess::exitCode() const
{
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}
