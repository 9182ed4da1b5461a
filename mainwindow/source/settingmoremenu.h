#pragma once

#include "entrymenu.h"

/** The settings that did not find room in the settings menu. */
class CSettingMoreMenu : public CEntryMenu
{
    Q_OBJECT

public:
    explicit CSettingMoreMenu(QWidget* parent);

protected:
    QString translateLabel(const char* label) const override { return tr(label); }
};
