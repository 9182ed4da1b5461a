#pragma once

#include "widgets/widget/widget.h"

/** A picture of the screen that takes the place of a test application while an information page is shown. */
class CFakeDesktop : public CWidget
{
    Q_OBJECT

public:
    explicit CFakeDesktop(QWidget* parent);
};
