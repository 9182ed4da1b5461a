#pragma once

#include "languagecode.h"
#include "mainframe2app.h"
#include "utilityinfo.h"

#include <QFont>
#include <QList>
#include <QString>

class QTranslator;

/**
 * The fixed files and paths of the unit, its settings and desktop files, and the language of the interface.
 * Static operations without a state; interface thread.
 *
 * Settings file and desktop file are read whole on each operation, changed in memory and written back whole;
 * nothing locks them. Other processes read the settings file too; it is all old or all new at any time. A
 * file above 1 MiB counts as one that cannot be parsed.
 *
 * Nothing is reported by more than the results given below: a failure gives false, an empty list, a zero
 * record or the default language, with a log line that names the file. An optional error text (may be null)
 * gets that line where it is a parameter.
 */
class CUICommUtils
{
public:
    enum PipeType { UI2Main = 0, Main2UI = 1 };

    CUICommUtils() = delete;

    // Fixed paths
    static QString getConfPath(); ///< directory of the per-user files
    static QString getWidgetStyleFileName();
    static QString getTestModeProfName(); ///< a built-in resource
    static QString getPipeName(PipeType type); ///< empty for another value
    static QString getVNCSessionMarkFileDirPath();
    static QString getVNCSessionMarkFileName();
    static QString getVNCPasswdFileName();
    static QString getCLIProfilePath();
    static QString getDefaultCLIProfileName(); ///< a name without directory
    static QString getCurrentCLIProfileName(); ///< with directory
    static QString getHelpIndexFileName();
    static QString getTSCalFileName(); ///< touch-screen calibration
    static QString getLockScreenMarkFileName(); ///< exists while the screen is locked
    static QString getSaveScreenMarkFileName();

    /** True if the file exists, can be opened for reading and is XML within the limits above. */
    static bool checkConfFile(const QString& path);

    // What the test application slots ran last (settings file). False also if the file has no board.

    /**
     * Notes mode and state of the slot, in every entry that has its index. A slot without entry is no error:
     * the file stays as it is.
     */
    static bool saveAppState(int appIndex, const QString& modeName, bool foreground, QString* err = nullptr);
    /** Notes that the slot runs nothing. */
    static bool clearAppState(int appIndex, QString* err = nullptr);
    /** Puts the slot in front and all others behind. */
    static bool setAppForeground(int appIndex, QString* err = nullptr);
    /** True if some slot had a test mode and was in front. */
    static bool isNeedLaunchLastRunApp(QString* err = nullptr);

    // Language

    /** Stores the language in the settings file. */
    static bool saveLanguage(LanguageCode code);
    /** The stored language; LANGUAGE_ENGLISH if there is none. */
    static LanguageCode getLanguageCode();
    /** The code string that is stored, "ge" for German; "en" for a value that is no language. */
    static QString toLangType(LanguageCode code);
    /** The reverse, case-sensitive; LANGUAGE_ENGLISH for an unknown text. */
    static LanguageCode toLangCode(const QString& text);
    /** Full path of the language's translation file, below the application's directory. */
    static QString getTranslateFileName(LanguageCode code);
    /** Loads that file; one that does not load leaves the translator empty and is logged. */
    static void loadTranslation(QTranslator& translator, LanguageCode code);
    /** The font for texts of the language; needs a QGuiApplication. */
    static QFont getLangFont(LanguageCode code);
    /** Logs the language's name. */
    static void printSystemLangPrompt(LanguageCode code);

    // Storage settings (settings file)

    /** Stores all of the record but msgPref, and copies the settings file to where the module's side reads
     * it. */
    static bool saveStorageSetting(const mainframe2app_message& msg);
    /** The stored record, msgPref empty; all zero if there is none. */
    static mainframe2app_message getStorageSetting();

    /** The external utilities of the desktop file in its order. `ok` may be null. Needs a QGuiApplication. */
    static QList<UtilityInfo> getAllUtilities(bool* ok, QString* err = nullptr);

    /**
     * Process id of the one running program of that name; 0 if several run, -1 if none, -2 if that could not
     * be found out. `name` is a plain program name: it becomes part of a shell command. Blocks for a few
     * milliseconds.
     */
    static int pidof(const QString& name);

    /** True while a test application says that it shows a dialog. */
    static bool isTestAppDlgPopup();
};
