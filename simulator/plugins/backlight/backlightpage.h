#pragma once

#include "widgets/widget/widget.h"

/** The backlight settings, a group for each power source. */
class CBacklightPage : public CWidget
{
    Q_OBJECT

public:
    explicit CBacklightPage(QWidget* parent);
};
