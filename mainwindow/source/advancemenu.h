#pragma once

#include "entrymenu.h"

/** The tiles behind the tool box item "Advanced". */
class CAdvanceMenu : public CEntryMenu
{
    Q_OBJECT

public:
    explicit CAdvanceMenu(QWidget* parent);

protected:
    QString translateLabel(const char* label) const override { return tr(label); }
};
