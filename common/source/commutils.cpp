#include "commutils.h"

#include "fieldtext.h"
#include "files/plainfile.h"
#include "xmlfile.h"

#include <QDebug>
#include <QDomElement>

#include <cstdlib>
#include <functional>

namespace {

constexpr int MaxIconSize = 1024 * 1024; // bytes

QString settingsFileName()
{
    return CUICommUtils::getConfPath() + QStringLiteral("/zentra-settings.xml");
}

QString desktopFileName()
{
    return CUICommUtils::getConfPath() + QStringLiteral("/zentra-desktop.xml");
}

void report(const QString& message, QString* err)
{
    qWarning("%s", qPrintable(message));
    if (err)
        *err = message;
}

// `operation` is empty or the prefix of the messages.
bool readDocument(
    const QString& path, const QString& operation, QDomDocument& document, QString* err = nullptr)
{
    switch (xmlfile::read(path, document)) {
    case xmlfile::ReadResult::Ok:
        return true;
    case xmlfile::ReadResult::CannotOpen:
        report(operation + QStringLiteral("File: %1 can not open.").arg(path), err);
        return false;
    case xmlfile::ReadResult::CannotParse:
        report(operation + QStringLiteral("File: %1 can not parse.").arg(path), err);
        return false;
    }
    return false;
}

bool writeSettings(const QDomDocument& document, const QString& openFailure)
{
    switch (xmlfile::write(settingsFileName(), document)) {
    case WriteResult::Ok:
        return true;
    case WriteResult::CannotOpen:
        qWarning("%s", qPrintable(openFailure));
        return false;
    case WriteResult::Incomplete:
        qWarning("File: %s can not be written completely.", qPrintable(settingsFileName()));
        return false;
    }
    return false;
}

QDomElement testInfo(const QDomElement& board)
{
    return board.firstChildElement(QStringLiteral("test_info"));
}

QDomElement firstTestMode(const QDomElement& board)
{
    return testInfo(board).firstChildElement(QStringLiteral("test_mode"));
}

bool isSlot(const QDomElement& testMode, int appIndex)
{
    return testMode.attribute(QStringLiteral("app_index")).toInt() == appIndex;
}

void setForeground(QDomElement testMode, bool foreground)
{
    testMode.setAttribute(
        QStringLiteral("foreground"), foreground ? QStringLiteral("true") : QStringLiteral("false"));
}

// Offers every slot of the settings file to `change`, which says whether it changed it, and writes the file
// if so.
bool changeTestModes(const std::function<bool(QDomElement&)>& change, QString* err)
{
    QDomDocument document;
    if (!readDocument(settingsFileName(), QString(), document, err))
        return false;
    const QDomElement board = document.documentElement().firstChildElement(QStringLiteral("BOARD"));
    if (board.isNull())
        return false;
    bool changed = false;
    for (QDomElement testMode = firstTestMode(board); !testMode.isNull();
         testMode = testMode.nextSiblingElement(QStringLiteral("test_mode"))) {
        changed |= change(testMode);
    }
    return !changed
        || writeSettings(
            document, QStringLiteral("File: %1 can not open for write.").arg(settingsFileName()));
}

// Changes the root's first element of that name, which is made if there is none, and writes the settings
// file.
bool changeRootChild(
    const QString& operation, const QString& name, const std::function<void(QDomElement&)>& change)
{
    QDomDocument document;
    if (!readDocument(settingsFileName(), operation, document))
        return false;
    QDomElement root = document.documentElement();
    QDomElement element = root.firstChildElement(name);
    if (element.isNull())
        element = root.appendChild(document.createElement(name)).toElement();
    change(element);
    return writeSettings(
        document, operation + QStringLiteral("[ zentra-settings ]: can not open for write."));
}

const QString& languageElement()
{
    static const QString name = QStringLiteral("language");
    return name;
}

const QString& storageElement()
{
    static const QString name = QStringLiteral("storage_setting");
    return name;
}

struct StorageNumber
{
    const char* attribute;
    std::int32_t mainframe2app_message::*field;
};

constexpr StorageNumber StorageNumbers[] = {
    {"profile_deleting", &mainframe2app_message::profileDel},
    {"profile_saving", &mainframe2app_message::profileSaving},
    {"result_saving", &mainframe2app_message::rsultSaving},
    {"advance_saving", &mainframe2app_message::advanceSaving},
};

} // namespace

bool CUICommUtils::checkConfFile(const QString& path)
{
    QDomDocument document;
    return xmlfile::read(path, document) == xmlfile::ReadResult::Ok;
}

bool CUICommUtils::saveAppState(int appIndex, const QString& modeName, bool foreground, QString* err)
{
    return changeTestModes(
        [=](QDomElement& testMode) {
            if (!isSlot(testMode, appIndex))
                return false;
            xmlfile::setAttribute(testMode, QStringLiteral("mode_name"), modeName);
            setForeground(testMode, foreground);
            return true;
        },
        err);
}

bool CUICommUtils::clearAppState(int appIndex, QString* err)
{
    return saveAppState(appIndex, QString(), false, err);
}

bool CUICommUtils::setAppForeground(int appIndex, QString* err)
{
    return changeTestModes(
        [=](QDomElement& testMode) {
            setForeground(testMode, isSlot(testMode, appIndex));
            return true;
        },
        err);
}

bool CUICommUtils::isNeedLaunchLastRunApp(QString* err)
{
    QDomDocument document;
    if (!readDocument(settingsFileName(), QString(), document, err))
        return false;
    const QDomElement board = document.documentElement().firstChildElement(QStringLiteral("BOARD"));
    for (QDomElement testMode = firstTestMode(board); !testMode.isNull();
         testMode = testMode.nextSiblingElement(QStringLiteral("test_mode"))) {
        if (!testMode.attribute(QStringLiteral("mode_name")).isEmpty()
            && testMode.attribute(QStringLiteral("foreground")) == QLatin1String("true"))
            return true;
    }
    return false;
}

bool CUICommUtils::saveLanguage(LanguageCode code)
{
    return changeRootChild(QStringLiteral("saveLanguage: "), languageElement(),
        [code](QDomElement& language) { language.setAttribute(QStringLiteral("type"), toLangType(code)); });
}

LanguageCode CUICommUtils::getLanguageCode()
{
    QDomDocument document;
    readDocument(settingsFileName(), QStringLiteral("getLanguageCode: "), document); // empty if that failed
    return toLangCode(
        document.documentElement().firstChildElement(languageElement()).attribute(QStringLiteral("type")));
}

bool CUICommUtils::saveStorageSetting(const mainframe2app_message& msg)
{
    const bool saved = changeRootChild(
        QStringLiteral("saveStorageSetting: "), storageElement(), [&msg](QDomElement& storage) {
            xmlfile::setAttribute(
                storage, QStringLiteral("fname_prefix"), fieldText(msg.fnamePrefix, sizeof msg.fnamePrefix));
            for (const StorageNumber& number : StorageNumbers)
                storage.setAttribute(QLatin1String(number.attribute), msg.*number.field);
        });
    if (!saved)
        return false;

    const QString command = QStringLiteral("cp -f %1 /usr/local/module").arg(settingsFileName());
    qDebug("\ncmd:%s", qPrintable(command));
    // Unchecked: a unit without a module has no such directory, and the SIGCHLD handler may have the exit
    // status.
    if (std::system(qPrintable(command)) != 0) { }
    return true;
}

mainframe2app_message CUICommUtils::getStorageSetting()
{
    mainframe2app_message msg = {};
    QDomDocument document;
    if (!readDocument(settingsFileName(), QStringLiteral("getStorageSetting: "), document))
        return msg;
    const QDomElement storage = document.documentElement().firstChildElement(storageElement());
    copyFieldText(msg.fnamePrefix, sizeof msg.fnamePrefix, storage.attribute(QStringLiteral("fname_prefix")));
    for (const StorageNumber& number : StorageNumbers)
        msg.*number.field = storage.attribute(QLatin1String(number.attribute)).toInt();
    return msg;
}

QList<UtilityInfo> CUICommUtils::getAllUtilities(bool* ok, QString* err)
{
    QDomDocument document;
    const bool readable = readDocument(desktopFileName(), QString(), document, err);
    const QDomElement utilities = document.documentElement()
                                      .firstChildElement(QStringLiteral("desktop"))
                                      .firstChildElement(QStringLiteral("utilities"));
    if (ok)
        *ok = readable && !utilities.isNull();

    QList<UtilityInfo> result;
    for (QDomElement item = utilities.firstChildElement(QStringLiteral("item")); !item.isNull();
         item = item.nextSiblingElement(QStringLiteral("item"))) {
        UtilityInfo info;
        info.id = item.attribute(QStringLiteral("id")).toInt();
        info.name = item.attribute(QStringLiteral("name"));
        info.path = item.attribute(QStringLiteral("path"));
        info.args = item.attribute(QStringLiteral("args"));
        info.wnd_name = item.attribute(QStringLiteral("wnd_name"));
        QFile icon(item.attribute(QStringLiteral("icon")));
        if (openPlainFile(icon))
            info.icon.loadFromData(icon.read(MaxIconSize));
        result << info;
    }
    return result;
}
