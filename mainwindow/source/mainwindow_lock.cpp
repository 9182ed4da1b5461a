// What F4 does: locking the touch screen, or saving a screenshot.

#include "mainwindow.h"

#include "commutils.h"
#include "systemsettings.h"
#include "widgets/messagebox/messagebox.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QSaveFile>
#include <QScopeGuard>
#include <QScreen>
#include <QThread>

#include <cerrno>

namespace {

constexpr unsigned long FOREGROUND_POLL = 200; // ms

} // namespace

void CMainWindow::lockScreen()
{
    CSystemSettings* settings = CSystemSettings::globalSettings();
    // A locked screen can always be unlocked, whatever became of the setting.
    if (bIsUILocked || settings->getAttribute(CSystemSettings::LockScreenORSaveScreen).toBool()) {
        bIsUILocked = !bIsUILocked;
        setScreenLocked(bIsUILocked);
        emit lockStateChanged(bIsUILocked);
    } else if (m_saveScreenCount < settings->getAttribute(CSystemSettings::SaveScreenMaxNum).toInt()) {
        saveScreen();
    } else {
        m_transitions.request(CTransitions::ScreenLimit, [this] { reportScreenLimit(); });
    }
}

void CMainWindow::saveScreen()
{
    QDir().mkpath(m_saveScreenDirPath);
    const QString fileName
        = QStringLiteral("%1/%2.png")
              .arg(m_saveScreenDirPath,
                  QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss")));
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
    ++m_saveScreenCount; // attempts, not files
}

void CMainWindow::reportScreenLimit()
{
    if (m_isLimitReported || CUICommUtils::isTestAppDlgPopup())
        return;
    m_isLimitReported = true; // F4 goes on coming while the box is up
    const auto reported = qScopeGuard([this] { m_isLimitReported = false; });
    // The box would come up under the test application, so the shell waits for the screen and does nothing
    // else. The word that it has come back, and the end of the process, are all that is let through.
    while (m_winVisibleReason == TestAppForeground && !m_isTerminating) {
        QThread::msleep(FOREGROUND_POLL);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    if (m_isTerminating)
        return;
    CMessageBox box(tr("Error saving screen!"),
        tr("Number of saved screenshots already reach\nor exceed maximum number allowed!"), CMessageBox::Ok,
        this);
    box.setTitleTextSize(20);
    box.setMessageTextSize(16);
    execBox(box);
}

void CMainWindow::setScreenLocked(bool locked)
{
    QFile mark(CUICommUtils::getLockScreenMarkFileName());
    if (locked && !mark.exists()) {
        if (!mark.open(QIODevice::ReadWrite))
            qWarning().noquote() << "Can not create" << mark.fileName() << '-' << mark.errorString();
    } else if (!locked && mark.exists()) {
        mark.remove();
    }
    m_touchState.isLocked = locked;
    updateTouchOwner();
}
