#pragma once

#include "languagecode.h"
#include "systemsettings.h"
#include "widgets/widget/widget.h"

#include <QMap>
#include <QVector>

class CParmComboBox;
class CParmField;
class CParmLineEdit;
class CTabWidget;
class GlobalString2TranslatedString;

/**
 * The built-in page of the unit-wide settings: language, units, alarm, passwords, style, clock source, the
 * storage behaviour of the test applications and what the screenshot key does. Each choice is in the settings
 * store and in the block of the other processes at once; the lists show what the store holds.
 *
 * Two things happen outside the page at every start, whether it is opened or not: applyAtStart().
 * Interface thread only. Owned by its Qt parent.
 */
class CGlobalSettings : public CWidget
{
    Q_OBJECT

public:
    enum Internal1ppsSource { Atomic1pps = 0, GPS1pps = 1, Atomic10HZ = 2 };

    explicit CGlobalSettings(QWidget* parent);

    /** What a start of the shell does: the clock source, and the mark for the screenshot key as stored. */
    static void applyAtStart();

    /** Shows the stored settings in every control, and brings the screenshot key's mark in line. */
    void setStorageSetting();
    /** Hands the storage settings, as the controls show them, to the test applications' settings file. */
    void changeStorageSetting2App();

    /**
     * Stores what the screenshot key does. Its mark file is there while the key locks the screen (false) and
     * absent while it saves the screen (true).
     */
    static void setSaveScreenState(bool save);
    /** Sets every slot to a clock source; the unit's tool works on while this returns. @return true */
    bool setInternal1ppsSource(Internal1ppsSource source);
    /** Sets every slot to the atomic 1 pps, whatever is stored; the first call of a process alone does it. */
    static void initClockSource();

public slots:
    void translate() override;
    void changeTab(int index);
    /** The user chose an entry of the list that sent this. */
    void changeConf(int index);
    /** The text of the field that sent this is another one. */
    void changeConf(const QString& text);

signals:
    void currentLanguageChanged(LanguageCode code);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    using IndexMap = QMap<int, GlobalString2TranslatedString*>;

    /** One row of the table of lists. */
    struct List
    {
        CParmComboBox* CGlobalSettings::*box;
        IndexMap CGlobalSettings::*map;
        int tab;
        int row;
        const char* caption;
        QVector<const char*> items;
        int itemsAtFirst; ///< how many of them the list has until its texts are first applied again
        int shownAtFirst;
        CSystemSettings::SystemAttribute attribute;
        struct Entry
        {
            const char* source;
            QVariant profile; ///< null: the source text in lower case
        };
        QVector<Entry> entries; ///< stored values, in their own order
    };
    static const QVector<List>& lists();

    void initialize();
    void initIdnex2ProfileAndTranslation();
    void init1ppsClockUi();
    void makeList(const List& list, int count);
    void place(CParmField* field, int tab, int row);
    QStringList itemTexts(const List& list, int count) const;
    void transCombobox(CParmComboBox* box, const QStringList& items);
    void showStored(CParmComboBox* box);
    void showSaveScreenOptions();

    CTabWidget* m_pMainTab = nullptr;
    CWidget* m_pGenSettingWidget = nullptr;
    CWidget* m_pStorSettingWidget = nullptr;
    CWidget* m_pSaveSettingWidget = nullptr;

    CParmComboBox* m_pComboLanguage = nullptr;
    CParmComboBox* m_pComboUnit = nullptr;
    CParmComboBox* m_pComboAudibleAlarm = nullptr;
    CParmComboBox* m_pComboShowPwd = nullptr;
    CParmComboBox* m_pComboUserInterface = nullptr;
    CParmComboBox* m_pComboInternal1pps = nullptr;
    CParmComboBox* m_pComboProfileDel = nullptr;
    CParmComboBox* m_pComboProfileSave = nullptr;
    CParmComboBox* m_pComboResultSave = nullptr;
    CParmComboBox* m_pComboAdvanceSave = nullptr;
    CParmComboBox* m_pComboLockSaveScreen = nullptr;
    CParmComboBox* m_pComboCompressLvl = nullptr;
    CParmLineEdit* m_pEditFilePrefix = nullptr;
    CParmLineEdit* m_pEditMaxNumber = nullptr;

    // By list index; the entries are children of the page.
    IndexMap m_pComboLanguageMap;
    IndexMap m_pComboUnitMap;
    IndexMap m_pComboAudibleAlarmMap;
    IndexMap m_pComboShowPwdMap;
    IndexMap m_pComboUserInterfaceMap;
    IndexMap m_pComboInternal1ppsMap;
    IndexMap m_pComboProfileDelMap;
    IndexMap m_pComboProfileSaveMap;
    IndexMap m_pComboResultSaveMap;
    IndexMap m_pComboAdvanceSaveMap;
    IndexMap m_pComboLockSaveScreenMap;
    IndexMap m_pComboCompressLvlMap;
    QMap<CParmComboBox*, IndexMap> m_parmComboBox2StringMap;

    int m_clockItems = 0; // of the clock source list on this unit
    int m_prevIndex = 0; // of the clock source chosen last
};
