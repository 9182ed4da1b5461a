#pragma once

#include "entrymenu.h"

/** The tiles behind the tool box item "Settings". */
class CSystemSettingsMenu : public CEntryMenu
{
    Q_OBJECT

public:
    explicit CSystemSettingsMenu(QWidget* parent);

protected:
    QString translateLabel(const char* label) const override { return tr(label); }
};
