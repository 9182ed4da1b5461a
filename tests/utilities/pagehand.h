#pragma once

#include "globalsettings.h"
#include "widgets/parmcombobox/parmcombobox.h"
#include "widgets/parmcombobox/parmlist.h"
#include "widgets/parmlineedit/parmlineedit.h"
#include "widgets/tabwidget/tabwidget.h"

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTest>

#include "testfiles.h"
#include "xscreen.h"

// What the tests of the settings page share: its controls by their English captions, and the block of the
// other processes as one of those sees it.

/** The settings in the shared block, by the names of the platform's own tool. */
inline QHash<QString, QString> blockContent()
{
    QProcess reader;
    reader.start(QStringLiteral("globalsegment"), {QStringLiteral("show")});
    reader.waitForFinished();
    QHash<QString, QString> content;
    for (const QString& line : QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\n')))
        content.insert(line.section(QLatin1Char(' '), 0, 0), line.section(QLatin1Char(' '), 1));
    return content;
}

/** The calls of the clock tools so far. */
inline QStringList clockCalls()
{
    QFile file(QStringLiteral("/tmp/var/sim/clock-calls"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/** A list or field of the page, on its tab, which comes to the front. */
template <typename Field> Field* field(const CGlobalSettings& page, const char* caption)
{
    auto* tabs = page.findChild<CTabWidget*>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        for (auto* found : tabs->widget(tab)->findChildren<Field*>()) {
            if (found->caption() == QLatin1String(caption)) {
                tabs->setCurrentIndex(tab);
                return found;
            }
        }
    }
    return nullptr;
}

/** The open list of a window. */
inline CParmList* openList(const QWidget* window)
{
    for (auto* list : window->findChildren<CParmList*>()) {
        if (list->isVisible())
            return list;
    }
    return nullptr;
}

/** Touches the middle of a control, as the touch screen does. */
inline void touch(const CXScreen& screen, const QWidget* control)
{
    screen.touch(control->mapToGlobal(control->rect().center()));
}

/** Chooses a row of a list by touches; the list stands on a page of `window`. */
inline void touchRow(const CXScreen& screen, const QWidget* window, const CParmComboBox* box, int row)
{
    touch(screen, box);
    QTRY_VERIFY(openList(window));
    const CParmList* list = openList(window);
    screen.touch(list->mapToGlobal(list->rowRect(row).center()));
    QTRY_VERIFY(!openList(window));
    QTRY_COMPARE(box->currentIndex(), row);
}
