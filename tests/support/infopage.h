#pragma once

#include "commutils.h"
#include "phrasebook.h"
#include "widgets/dialog/dialog.h"
#include "widgets/label/label.h"

#include <QApplication>
#include <QTest>
#include <QTranslator>

// What the tests of the information pages look at.

using Phrases = QHash<QByteArray, QString>;

/** A language that the application speaks while this object lives. */
class CInstalledPhrasebook
{
public:
    explicit CInstalledPhrasebook(const Phrases& phrases)
        : m_phrasebook(phrases)
    {
        QCoreApplication::installTranslator(&m_phrasebook);
    }
    ~CInstalledPhrasebook() { QCoreApplication::removeTranslator(&m_phrasebook); }
    CInstalledPhrasebook(const CInstalledPhrasebook&) = delete;
    CInstalledPhrasebook& operator=(const CInstalledPhrasebook&) = delete;

private:
    CPhrasebook m_phrasebook;
};

/** A language of the shell, with its texts and font, while this object lives. */
class CShellLanguage
{
public:
    explicit CShellLanguage(LanguageCode code)
        : m_fontBefore(QApplication::font())
    {
        const QString directory = QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/lang");
        m_isLoaded = m_translator.load(QStringLiteral("zentra_") + CUICommUtils::toLangType(code), directory);
        QCoreApplication::installTranslator(&m_translator);
        QApplication::setFont(CUICommUtils::getLangFont(code));
    }
    ~CShellLanguage()
    {
        QCoreApplication::removeTranslator(&m_translator);
        QApplication::setFont(m_fontBefore);
    }
    CShellLanguage(const CShellLanguage&) = delete;
    CShellLanguage& operator=(const CShellLanguage&) = delete;

    bool isLoaded() const { return m_isLoaded; }

private:
    QFont m_fontBefore;
    QTranslator m_translator;
    bool m_isLoaded = false;
};

inline QString textOf(const CDialog& page, const char* label)
{
    const auto* found = page.findChild<CLabel*>(QLatin1String(label));
    return found ? found->text() : QStringLiteral("no such label");
}

inline QStringList shownLabels(const CDialog& page)
{
    QStringList names;
    for (const CLabel* label : page.findChildren<CLabel*>()) {
        if (label->isVisible())
            names << label->objectName();
    }
    return names;
}

/** Visible parts that lie over each other or over the border. */
inline QString misplacedParts(const CDialog& page)
{
    QStringList names;
    QRegion taken;
    for (const QWidget* part : page.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (part->isHidden())
            continue;
        if (!page.innerRect().contains(part->geometry()) || taken.intersects(part->geometry()))
            names << part->objectName() + QLatin1Char('?');
        taken += part->geometry();
    }
    return names.join(QLatin1Char(','));
}

/** Visible labels whose text does not fit. */
inline QString cutTexts(const CDialog& page)
{
    QStringList texts;
    for (const CLabel* label : page.findChildren<CLabel*>()) {
        const QSize needed = label->sizeHint();
        if (label->isVisible() && (needed.width() > label->width() || needed.height() > label->height()))
            texts << label->text();
    }
    return texts.join(QLatin1Char(','));
}

/** Keeps a picture of the page for a person to look at, if $PAGE_PICTURES names a directory. */
inline void keepPicture(CDialog& page, const QString& name)
{
    const QString directory = qEnvironmentVariable("PAGE_PICTURES");
    if (!directory.isEmpty()
        && !page.grab().save(directory + QLatin1Char('/') + name + QStringLiteral(".png")))
        qWarning("Cannot keep the picture %s", qPrintable(name));
}
