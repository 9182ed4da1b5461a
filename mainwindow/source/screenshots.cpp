#include "screenshots.h"

#include "commutils.h"
#include "shellbox.h"
#include "windowhost.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QSaveFile>
#include <QScopeGuard>
#include <QScreen>
#include <QThread>

#include <cerrno>

namespace {

constexpr unsigned long FOREGROUND_POLL = 200; // ms

} // namespace

void CScreenshots::save(const QString& directory)
{
    QDir().mkpath(directory);
    const QString fileName
        = QStringLiteral("%1/%2.png")
              .arg(directory, QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss")));
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(0);
    // A full disk or a directory that cannot be written costs the picture and nothing else: no half of a file
    // stays, and what an earlier press saved is only replaced by a whole picture. Written in one piece and
    // without a buffer: a buffered file does not tell of a short write.
    QBuffer png;
    QSaveFile file(fileName);
    qint64 written = -1;
    if (png.open(QIODevice::WriteOnly) && picture.save(&png, "PNG")
        && file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        written = file.write(png.data());
    const bool isShort = written >= 0 && written < png.size(); // the file does not say why
    if (isShort || written < 0 || !file.commit())
        qWarning().noquote() << "Can not save the screen to" << fileName << '-'
                             << (isShort ? qt_error_string(ENOSPC) : file.errorString());
}

void CScreenshots::reportLimit()
{
    m_transitions.request(CTransitions::ScreenLimit, [this] { waitAndTell(); });
}

void CScreenshots::waitAndTell()
{
    if (m_isReported || CUICommUtils::isTestAppDlgPopup())
        return;
    m_isReported = true; // F4 goes on coming while the box is up
    const auto reported = qScopeGuard([this] { m_isReported = false; });
    // The box would come up under the test application, so the shell waits for the screen and does nothing
    // else. The word that it has come back, and the end of the process, are all that is let through.
    while (m_host.isTestAppInFront() && !m_host.isEnding()) {
        QThread::msleep(FOREGROUND_POLL);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    if (!m_host.isEnding())
        execShellBox(ShellBox::ScreenLimit, m_host,
            QCoreApplication::translate("CMainWindow", "Error saving screen!"),
            QCoreApplication::translate("CMainWindow",
                "Number of saved screenshots already reach\nor exceed maximum number allowed!"));
}
