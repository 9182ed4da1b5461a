#pragma once

#include "widgets/widget/widget.h"

/** The empty framed page shown when no utility is open. */
class CHomePage : public CWidget
{
    Q_OBJECT

public:
    explicit CHomePage(QWidget* parent);
};
