#pragma once

#include "widgets/pushbutton/pushbutton.h"

/** One touchable tab of a tab widget; the chosen one is brighter and has an accent line. Made by CTabWidget.
 */
class CTabButton : public CPushButton
{
    Q_OBJECT

public:
    explicit CTabButton(const QString& text, QWidget* parent);

protected:
    /** A chosen tab stays chosen when it is touched again; the tab widget unchecks the others. */
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;
};
