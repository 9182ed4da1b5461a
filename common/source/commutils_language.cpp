#include "commutils.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTranslator>

#include <algorithm>
#include <iterator>

namespace {

enum class Bold { Yes, No, NotSet };

struct Language
{
    LanguageCode code;
    const char* type; // as stored, and in the name of the translation file
    const char* translationFile;
    const char* fontFamily;
    int pixelSize;
    Bold bold;
    const char* name;
};

// In the order in which toLangCode() compares. German is "ge" and stays so: settings of units in the field
// hold it.
constexpr Language Languages[] = {
    {LANGUAGE_ENGLISH, "en", "/lang/zentra_en.qm", "Arial", 15, Bold::Yes, "English"},
    {LANGUAGE_CHINESE, "zh_CN", "/lang/zentra_zh_CN.qm", "WenQuanYi Micro Hei", 16, Bold::No, "Chinese"},
    {LANGUAGE_GERMAN, "ge", "/lang/zentra_ge.qm", "Arial", 15, Bold::NotSet, "German"},
    {LANGUAGE_FRENCH, "fr", "/lang/zentra_fr.qm", "Arial", 15, Bold::NotSet, "French"},
    {LANGUAGE_JAPANESE, "ja", "/lang/zentra_ja.qm", "Arial Unicode MS", 15, Bold::No, "Japanese"},
    {LANGUAGE_HUNGARIAN, "hu", "/lang/zentra_hu.qm", "Arial", 15, Bold::NotSet, "Hungarian"},
    {LANGUAGE_RUSSIAN, "ru", "/lang/zentra_ru.qm", "Segoe UI", 16, Bold::No, "Russian"},
};

// What a value that is no language gets.
constexpr Language DefaultLanguage
    = {LANGUAGE_ENGLISH, "en", "/lang/zentra_en.qm", "Arial", 15, Bold::Yes, "English(Default)"};

const Language& find(LanguageCode code)
{
    const auto* const found = std::find_if(std::begin(Languages), std::end(Languages),
        [code](const Language& language) { return language.code == code; });
    return found == std::end(Languages) ? DefaultLanguage : *found;
}

} // namespace

QString CUICommUtils::toLangType(LanguageCode code)
{
    return QString::fromLatin1(find(code).type);
}

LanguageCode CUICommUtils::toLangCode(const QString& text)
{
    for (const Language& language : Languages) {
        if (text == QLatin1String(language.type))
            return language.code;
    }
    return LANGUAGE_ENGLISH;
}

QString CUICommUtils::getTranslateFileName(LanguageCode code)
{
    return QCoreApplication::applicationDirPath() + QLatin1String(find(code).translationFile);
}

void CUICommUtils::loadTranslation(QTranslator& translator, LanguageCode code)
{
    const QString name = getTranslateFileName(code);
    if (!translator.load(name))
        qWarning("[%s]: Translation can not be loaded.", qPrintable(name));
}

QFont CUICommUtils::getLangFont(LanguageCode code)
{
    const Language& language = find(code);
    QFont font(QString::fromLatin1(language.fontFamily)); // not of the language before, which may be bold
    font.setStyleStrategy(QFont::NoAntialias);
    font.setStyleHint(
        QFont::SansSerif, QFont::PreferDevice); // takes the place of the strategy before, as wanted
    font.setPixelSize(language.pixelSize);
    if (language.bold != Bold::NotSet)
        font.setBold(language.bold == Bold::Yes);
    return font;
}

void CUICommUtils::printSystemLangPrompt(LanguageCode code)
{
    qDebug("Current System Language: %s", find(code).name);
}
