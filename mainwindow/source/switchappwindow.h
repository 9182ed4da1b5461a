#pragma once

#include "widgets/widget/widget.h"

/** Covers the page frame while a test application is loaded or released, and says which. */
class CSwitchAppWindow : public CWidget
{
    Q_OBJECT

public:
    explicit CSwitchAppWindow(QWidget* parent);

    void start();
    void start(const QString& text);
    /** Ends the switch: clears the text and hides. */
    void finish();
    bool isFinished() const { return bIsFinish; }

    void showMessage(const QString& text);
    void clearMessage();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool bIsFinish = true;
    QString m_message;
    bool m_pictureLoaded = false;
};
