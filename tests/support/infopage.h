#pragma once

#include "commutils.h"
#include "phrasebook.h"
#include "widgets/dialog/dialog.h"
#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widgetstyle/stylepainter.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <algorithm>

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
    /** A row for each language in the column "language". */
    static void addRows()
    {
        QTest::addColumn<int>("language");
        for (const char* type : {"en", "zh_CN", "ge", "fr", "ja", "hu", "ru"})
            QTest::newRow(type) << int(CUICommUtils::toLangCode(QLatin1String(type)));
    }

private:
    QFont m_fontBefore;
    QTranslator m_translator;
    bool m_isLoaded = false;
};

/** Presses a button of the next page that opens: by touch, or with the arrow keys and Enter. */
class CPageAnswer : public QObject
{
public:
    CPageAnswer(bool byKey, const char* button)
        : m_isByKey(byKey)
        , m_button(QLatin1String(button))
    {
        m_timer.setInterval(10);
        connect(&m_timer, &QTimer::timeout, this, &CPageAnswer::look);
        m_timer.start();
    }
    bool isAnswered() const { return m_isAnswered; }

private:
    void look()
    {
        auto* page = qobject_cast<CDialog*>(QApplication::activeModalWidget());
        auto* button = page ? page->findChild<CPushButton*>(m_button) : nullptr;
        if (!button || !page->isVisible())
            return;
        m_timer.stop();
        if (!m_isByKey) {
            m_isAnswered = true;
            button->click();
            return;
        }
        // The four keys in turn, as somebody who looks for the button.
        for (const int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_Up}) {
            press(page, key);
            if (page->markedButton() == button) {
                m_isAnswered = true;
                press(page, Qt::Key_Return);
                return;
            }
        }
        page->reject(); // out of reach
    }
    static void press(QWidget* widget, int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }

    bool m_isByKey;
    QString m_button;
    QTimer m_timer;
    bool m_isAnswered = false;
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

/** Contrast of what is drawn on a widget's ground, which is the colour of most of its pixels. */
inline double drawnContrast(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QRgb ground = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (count.value() > counts.value(ground))
            ground = count.key();
    }
    double best = 1;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        best = std::max(best, CStylePainter::contrast(QColor(ground), QColor(count.key())));
    return best;
}

/** Visible texts below the contrast that everybody can read. */
inline QString faintTexts(CDialog& page)
{
    QStringList texts;
    for (CLabel* label : page.findChildren<CLabel*>()) {
        if (label->isVisible() && !label->text().trimmed().isEmpty()
            && drawnContrast(label->grab().toImage()) < 4.5)
            texts << label->text();
    }
    for (CPushButton* button : page.findChildren<CPushButton*>()) {
        const QRect inside = button->rect().adjusted(10, 8, -10, -8); // without its frame
        if (button->isVisible() && !button->text().isEmpty()
            && drawnContrast(button->grab(inside).toImage()) < 4.5)
            texts << button->text();
    }
    return texts.join(QLatin1Char(','));
}

/** Visible buttons too small for a finger. */
inline QString smallButtons(const CDialog& page)
{
    QStringList names;
    for (const CPushButton* button : page.findChildren<CPushButton*>()) {
        if (button->isVisible() && !button->testAttribute(Qt::WA_TransparentForMouseEvents)
            && (button->width() < 40 || button->height() < 40))
            names << button->objectName();
    }
    return names.join(QLatin1Char(','));
}

inline bool hasColor(const QImage& image, const QColor& color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

/** Keeps a picture of the page for a person to look at, if $PAGE_PICTURES names a directory. */
inline void keepPicture(CDialog& page, const QString& name)
{
    const QString directory = qEnvironmentVariable("PAGE_PICTURES");
    if (!directory.isEmpty()
        && !page.grab().save(directory + QLatin1Char('/') + name + QStringLiteral(".png")))
        qWarning("Cannot keep the picture %s", qPrintable(name));
}
