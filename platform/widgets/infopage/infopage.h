#pragma once

#include "widgets/dialog/dialog.h"

class CWidget;

/**
 * What the information pages have in common: a dialog with a frame, a title across its top, labels, and a
 * strip at its bottom with an OK button (object name "ok") that closes it. A page adds its labels, calls
 * dress() once they are there, and sets the texts of title and button in its translate().
 *
 * Interface thread only. Owned by its Qt parent.
 */
class CInfoPage : public CDialog
{
    Q_OBJECT

public:
    /** Colours of the dialog and of all its labels. */
    void setBackgroundColor(const CThemeColor& color);
    void setTextColor(const CThemeColor& color);

public slots:
    void onOk();

protected:
    // Pixels
    static constexpr int TitleHeight = 48;
    static constexpr int Gap = 8;
    static constexpr int ButtonWidth = 120;
    static constexpr int ButtonHeight = 42;

    explicit CInfoPage(QWidget* parent = nullptr);

    CLabel* addLabel(const QString& objectName);
    /** Gives the page and the labels that it has their looks. @param borderWidth pixels */
    void dress(const CThemeColor& ground, const CThemeColor& border, int borderWidth);
    /**
     * Places the title, and the strip with its button.
     * @param stripTop top of the strip in the page, in pixels
     * @param rowHeight height of the strip's row of buttons, in whose middle the button stands
     * @return the height that the page takes with its border
     */
    int placeFrame(int stripTop, int rowHeight = ButtonHeight);

    CLabel* m_pTitleLabel;
    CWidget* m_pBtnWidget; // the strip
    CPushButton* m_pBtnOk;
};
