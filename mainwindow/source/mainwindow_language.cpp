// Changing the language of the interface while it runs.

#include "mainwindow.h"

#include "commutils.h"
#include "errorline.h"
#include "services/langswitchserv.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QApplication>
#include <QTranslator>

namespace {

/** The language switching service counts languages in its own way. */
int serviceLanguage(LanguageCode code)
{
    switch (code) {
    case LANGUAGE_CHINESE:
        return 1;
    case LANGUAGE_GERMAN:
        return 2;
    case LANGUAGE_FRENCH:
        return 3;
    case LANGUAGE_JAPANESE:
        return 4;
    case LANGUAGE_HUNGARIAN:
        return 9;
    case LANGUAGE_RUSSIAN:
        return 5;
    default: // English
        return 0;
    }
}

} // namespace

void CMainWindow::changeLanguageMiniGui(LanguageCode code)
{
    serv::CLangSwitchServ service;
    if (!service.SwitchLanguage(serviceLanguage(code)))
        ERROR_LINE();
}

void CMainWindow::changeLanguage(LanguageCode code)
{
    m_transitions.request(CTransitions::Language,
        [this, code] { m_transitions.perform([this, code] { applyLanguage(code); }); });
}

void CMainWindow::applyLanguage(LanguageCode code)
{
    if (code < LANGUAGE_ENGLISH || code > LANGUAGE_RUSSIAN || code == m_prevLangCode)
        return;

    CUICommUtils::printSystemLangPrompt(code);
    changeLanguageMiniGui(code);

    QApplication::removeTranslator(m_pTrans);
    CUICommUtils::loadTranslation(*m_pTrans, code);
    QApplication::installTranslator(m_pTrans);
    QApplication::setFont(CUICommUtils::getLangFont(code));

    m_prevLangCode = code;
    CUICommUtils::saveLanguage(code);

    const QString styleFile = CUICommUtils::getWidgetStyleFileName();
    CWidgetStyle::setWidgetStyle(styleFile);
    CWidgetStyle::initialize(styleFile);
    updateWidgetStyle();
    translate();
}
