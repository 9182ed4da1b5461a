#include "globalsettings.h"

#include "commutils.h"
#include "fieldtext.h"
#include "globalstring2translatedstring.h"
#include "mainframe2app.h"
#include "orloclock.h"
#include "services/boardutils.h"
#include "standardstreams.h"
#include "widgets/parmcombobox/parmcombobox.h"
#include "widgets/parmlineedit/parmlineedit.h"
#include "widgets/tabwidget/tabwidget.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QDebug>
#include <QFile>

#include <algorithm>
#include <unistd.h>

namespace {

/** A diagnostic on standard output, which never waits for its reader. */
template <typename... Values> void say(const char* format, Values... values)
{
    standardstreams::write(STDOUT_FILENO, QString::asprintf(format, values...).toUtf8());
}

constexpr int MARGIN_X = 16; // the grid that the pages share
constexpr int MARGIN_Y = 13;
constexpr int ROW_HEIGHT = 46;
constexpr int ROW_PITCH = 54;
constexpr int PREFIX_BYTES = 63; // of the field that other processes read, without its end
constexpr int MAX_NUMBER_ROW = 2;
constexpr int SCREENSHOTS_MIN = 1;
constexpr int SCREENSHOTS_MAX = 1000;

CSystemSettings* store()
{
    return CSystemSettings::globalSettings();
}

/** Whether a stored value is that of an entry. */
bool isValue(QVariant stored, const QVariant& profile)
{
    if (profile.userType() == QMetaType::QString)
        return stored.toString().compare(profile.toString(), Qt::CaseInsensitive) == 0;
    // What an earlier process stored is text.
    if (stored.toString() == QLatin1String("true") || stored.toString() == QLatin1String("false"))
        stored = stored.toBool();
    return stored.convert(profile.userType()) && stored == profile;
}

stOrlo_ClockSrc_cmd commandForAll(int source)
{
    stOrlo_ClockSrc_cmd cmd = {-1, {}};
    std::fill(std::begin(cmd.clock_source), std::end(cmd.clock_source), source);
    return cmd;
}

int clockCode(CGlobalSettings::Internal1ppsSource source)
{
    switch (source) {
    case CGlobalSettings::GPS1pps:
        return 2;
    case CGlobalSettings::Atomic1pps:
        return 3;
    case CGlobalSettings::Atomic10HZ:
        return 4;
    }
    return 3;
}

} // namespace

CGlobalSettings::CGlobalSettings(QWidget* parent)
    : CWidget(parent)
{
    initialize();
    initClockSource();
    setStorageSetting();
}

void CGlobalSettings::applyAtStart()
{
    initClockSource();
    setSaveScreenState(isValue(store()->getAttribute(CSystemSettings::LockScreenORSaveScreen), 1));
}

void CGlobalSettings::initialize()
{
    setBackgroundColor(CWidgetStyle::ColorScreen);
    setBorderColor(CWidgetStyle::ColorFrame);
    m_pMainTab = new CTabWidget(this);
    m_pGenSettingWidget = new CWidget;
    m_pStorSettingWidget = new CWidget;
    m_pSaveSettingWidget = new CWidget;
    m_pMainTab->addTab(m_pGenSettingWidget, tr("General Setting"));
    m_pMainTab->addTab(m_pStorSettingWidget, tr("Storage Setting"));
    m_pMainTab->addTab(m_pSaveSettingWidget, tr("Save Setting"));
    m_pMainTab->setCurrentIndex(0);
    connect(m_pMainTab, &CTabWidget::currentChanged, this, &CGlobalSettings::changeTab);

    for (const List& list : lists()) {
        if (list.attribute == CSystemSettings::ClkSrc0)
            init1ppsClockUi();
        else
            makeList(list, list.itemsAtFirst);
    }
    m_pComboLanguage->setCurrentIndex(CUICommUtils::getLanguageCode() - LANGUAGE_ENGLISH);

    m_pEditFilePrefix = new CParmLineEdit(tr("File Name Prefix"), QString());
    m_pEditFilePrefix->setSKPType(CKeyPadFactory::KeyPadText);
    m_pEditFilePrefix->setMaxBytes(PREFIX_BYTES);
    place(m_pEditFilePrefix, m_pMainTab->count() - 2, 0);
    m_pEditMaxNumber = new CParmLineEdit(tr("Maximum Number of Screenshots"), QStringLiteral("50"));
    m_pEditMaxNumber->setSKPType(CKeyPadFactory::KeyPadNumber);
    m_pEditMaxNumber->setRange(SCREENSHOTS_MIN, SCREENSHOTS_MAX);
    place(m_pEditMaxNumber, m_pMainTab->count() - 1, MAX_NUMBER_ROW);
    for (CParmLineEdit* edit : {m_pEditFilePrefix, m_pEditMaxNumber})
        connect(edit, &CParmLineEdit::textChanged, this,
            QOverload<const QString&>::of(&CGlobalSettings::changeConf));

    initIdnex2ProfileAndTranslation();
}

void CGlobalSettings::init1ppsClockUi()
{
    constexpr int Everywhere = 2; // the third item needs a clock in each slot
    const auto list = std::find_if(lists().begin(), lists().end(),
        [](const List& each) { return each.attribute == CSystemSettings::ClkSrc0; });
    m_clockItems = miscutils::CBoardUtils::IsChassisRevE() ? list->items.size() : Everywhere;
    makeList(*list, m_clockItems);
}

void CGlobalSettings::makeList(const List& list, int count)
{
    const QStringList items = itemTexts(list, count);
    auto* box = new CParmComboBox(tr(list.caption), items, items.at(list.shownAtFirst));
    this->*list.box = box;
    place(box, list.tab, list.row);
    connect(box, &CParmComboBox::activated, this, QOverload<int>::of(&CGlobalSettings::changeConf));
}

void CGlobalSettings::place(CParmField* field, int tab, int row)
{
    field->setParent(m_pMainTab->widget(tab));
    const int width = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea).width() - 2 * MARGIN_X;
    field->setGeometry(0, row * ROW_PITCH, width, ROW_HEIGHT);
}

void CGlobalSettings::initIdnex2ProfileAndTranslation()
{
    for (const List& list : lists()) {
        IndexMap& map = this->*list.map;
        for (const List::Entry& entry : list.entries)
            map.insert(map.size(),
                new GlobalString2TranslatedString(QString::fromLatin1(entry.source), tr(entry.source),
                    list.attribute, entry.profile, this));
        m_parmComboBox2StringMap.insert(this->*list.box, map);
    }
}

QStringList CGlobalSettings::itemTexts(const List& list, int count) const
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts << tr(list.items.at(i));
    return texts;
}

void CGlobalSettings::translate()
{
    CWidget::translate();
    const QString tabs[] = {tr("General Setting"), tr("Storage Setting"), tr("Save Setting")};
    for (int i = 0; i < m_pMainTab->count(); ++i)
        m_pMainTab->setTabText(i, tabs[i]);
    for (const List& list : lists()) {
        CParmComboBox* box = this->*list.box;
        box->setCaption(tr(list.caption));
        transCombobox(box, itemTexts(list, box == m_pComboInternal1pps ? m_clockItems : list.items.size()));
    }
    m_pEditFilePrefix->setCaption(tr("File Name Prefix"));
    m_pEditMaxNumber->setCaption(tr("Maximum Number of Screenshots"));
}

void CGlobalSettings::transCombobox(CParmComboBox* box, const QStringList& items)
{
    const int index = box->currentIndex();
    box->addItems(items);
    if (index >= 0)
        box->setCurrentIndex(index);
    else
        showStored(box); // a text that is no item
}

void CGlobalSettings::showStored(CParmComboBox* box)
{
    const IndexMap map = m_parmComboBox2StringMap.value(box);
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        const QVariant stored = store()->getAttribute(entry.value()->Attribute());
        if (!isValue(stored, entry.value()->Profile()))
            continue;
        // A value that this list does not offer (the alarm is off) is shown all the same.
        if (entry.key() < box->count())
            box->setCurrentIndex(entry.key());
        else
            box->setShownText(tr(entry.value()->Source().toLatin1().constData()));
        qDebug() << "### try set global attribute " << entry.value()->Attribute() << stored;
    }
}

void CGlobalSettings::setStorageSetting()
{
    m_pEditFilePrefix->setText(store()->getAttribute(CSystemSettings::FileNamePrefix).toString());
    m_pEditMaxNumber->setText(
        QString::number(store()->getAttribute(CSystemSettings::SaveScreenMaxNum).toInt()));
    for (auto list = m_parmComboBox2StringMap.cbegin(); list != m_parmComboBox2StringMap.cend(); ++list)
        showStored(list.key());
    showSaveScreenOptions();
    setSaveScreenState(m_pComboLockSaveScreen->currentIndex() != 0);
}

void CGlobalSettings::showSaveScreenOptions()
{
    const bool isSaving = m_pComboLockSaveScreen->currentIndex() != 0;
    m_pComboCompressLvl->setVisible(isSaving);
    m_pEditMaxNumber->setVisible(isSaving);
}

void CGlobalSettings::changeTab(int index)
{
    qDebug() << "### settings tab" << m_pMainTab->tabText(index);
}

void CGlobalSettings::changeConf(int index)
{
    auto* box = qobject_cast<CParmComboBox*>(sender());
    if (!box)
        return;
    const IndexMap map = m_parmComboBox2StringMap.value(box);
    const GlobalString2TranslatedString* entry = map.value(index);
    if (box == m_pComboLanguage && entry) {
        emit currentLanguageChanged(LanguageCode(entry->Profile().toInt()));
    } else if (box == m_pComboLockSaveScreen) {
        showSaveScreenOptions();
        setSaveScreenState(index != 0);
    } else if (box == m_pComboInternal1pps) {
        if (index < Atomic1pps || index > Atomic10HZ || !setInternal1ppsSource(Internal1ppsSource(index)))
            return;
        if (index == Atomic10HZ)
            return; // holds until the next start, as the clock itself does
    }
    if (!entry) {
        showStored(box); // a choice that nothing can be stored for was none
        return;
    }
    store()->setAttribute(entry->Attribute(), entry->Profile(), true);
    qDebug() << "### Try change m_parmComboBox2StringMap[pSender][pSender->currentIndex()]->Attribute() "
             << entry->Attribute() << entry->Profile();
}

void CGlobalSettings::changeConf(const QString& text)
{
    if (sender() == m_pEditMaxNumber)
        store()->setAttribute(CSystemSettings::SaveScreenMaxNum, text.toInt(), true);
    else if (sender() == m_pEditFilePrefix)
        store()->setAttribute(CSystemSettings::FileNamePrefix, m_pEditFilePrefix->text(), true);
}

void CGlobalSettings::changeStorageSetting2App()
{
    mainframe2app_message msg = {};
    copyFieldText(msg.msgPref, sizeof msg.msgPref, QStringLiteral("MAINFRAME2APP"));
    copyFieldText(msg.fnamePrefix, sizeof msg.fnamePrefix, m_pEditFilePrefix->text());
    msg.profileDel = m_pComboProfileDel->currentIndex();
    msg.profileSaving = m_pComboProfileSave->currentIndex();
    msg.rsultSaving = m_pComboResultSave->currentIndex();
    msg.advanceSaving = m_pComboAdvanceSave->currentIndex() == 0 ? 1 : 0;
    say("\n\n\n changeStorageSetting2App,msgPref=%s, fnamePrefix=%s, profileDel=%d, profileSaving=%d, "
        "rsultSaving=%d, advanceSaving=%d. \n\n\n",
        msg.msgPref, msg.fnamePrefix, msg.profileDel, msg.profileSaving, msg.rsultSaving, msg.advanceSaving);
    CUICommUtils::saveStorageSetting(msg); // says itself what went wrong
}

void CGlobalSettings::setSaveScreenState(bool save)
{
    store()->setAttribute(CSystemSettings::LockScreenORSaveScreen, save, true);
    QFile mark(CUICommUtils::getSaveScreenMarkFileName());
    // Made only where nothing is: a link that somebody puts there meanwhile is not followed.
    if (save ? mark.exists() && !mark.remove()
             : !mark.exists() && !mark.open(QIODevice::ReadWrite | QIODevice::NewOnly))
        qWarning().noquote() << "Can not change" << mark.fileName() << '-' << mark.errorString();
}

bool CGlobalSettings::setInternal1ppsSource(Internal1ppsSource source)
{
    say("set 1pps source %d \n", source);
    stOrlo_ClockSrc_cmd cmd = commandForAll(clockCode(source));
    setOrloclock(&cmd);
    m_prevIndex = source;
    say("prevIndex %d\n", m_prevIndex);
    return true;
}

void CGlobalSettings::initClockSource()
{
    static bool isDone = false;
    if (isDone)
        return;
    isDone = true;
    stOrlo_ClockSrc_cmd cmd = commandForAll(clockCode(Atomic1pps));
    setOrloclock(&cmd);
}

void CGlobalSettings::showEvent(QShowEvent* event)
{
    setSaveScreenState(m_pComboLockSaveScreen->currentIndex() != 0);
    CWidget::showEvent(event);
}

void CGlobalSettings::resizeEvent(QResizeEvent* event)
{
    CWidget::resizeEvent(event);
    m_pMainTab->setGeometry(rect().adjusted(MARGIN_X, MARGIN_Y, -MARGIN_X, -MARGIN_Y));
}
