#include "commutils.h"
#include "detachedcommand.h"
#include "mainapplication.h"
#include "mainwindow.h"
#include "startup.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QFile>
#include <QTextCodec>
#include <QTranslator>

#include <csignal>
#include <memory>

namespace {

constexpr int ANOTHER_SHELL_RUNS = 3; // exit status

/** Fonts are looked up by the shell's own short configuration; reading the system's takes far longer. */
void useOwnFontConfiguration()
{
    const QString file = CMainApplication::applicationDirPath() + QStringLiteral("/fonts/fonts.conf");
    if (QFile::exists(file))
        qputenv("FONTCONFIG_FILE", QFile::encodeName(file));
}

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    if (!lockInstrument())
        return ANOTHER_SHELL_RUNS;
    CDetachedCommand::keepEnvironment(); // what follows is for this process, not for the commands it starts
    // Nothing here draws with OpenGL, and loading it would cost 60 ms and 32 MB at every start.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    // The unit has no session bus. Without this, the first text on a button makes Qt look for one, for a
    // screen reader: a thread, and a child process that tries to start a bus.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");

    std::signal(SIGCHLD, child_handler);
    setup_unix_signal_handlers();

    CMainApplication::setOrganizationName(QStringLiteral("zentra"));
    CMainApplication::setApplicationName(QStringLiteral("mainframe"));
    auto application = std::make_unique<CMainApplication>(argc, argv);
    CMainApplication::setQuitOnLastWindowClosed(false); // it ends by a signal only, hidden or not

    useOwnFontConfiguration();

    initConfiguration(); // the shell starts with whatever is there

    // UTF-8 is the only choice left for translations and C strings.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

    CWidgetStyle::initialize(CUICommUtils::getWidgetStyleFileName());

    const LanguageCode language = CUICommUtils::getLanguageCode();
    CUICommUtils::printSystemLangPrompt(language);
    auto font = std::make_unique<QFont>(CUICommUtils::getLangFont(language));
    CMainApplication::setFont(*font);

    auto translator = std::make_unique<QTranslator>();
    CUICommUtils::loadTranslation(*translator, language);
    CMainApplication::installTranslator(translator.get());

    auto window = std::make_unique<CMainWindow>(nullptr);
    window->markAppIndex(0);
    application->setMainWindowInstance(window.get());
    window->changeLanguageMiniGui(language);
    window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window->move(window->x(), window->y() + 60); // asked for once; the window manager decides
    window->show();

    const int result = CMainApplication::exec();

    application->setMainWindowInstance(nullptr);
    window.reset();
    translator.reset();
    font.reset();
    application.reset();
    return result;
}
