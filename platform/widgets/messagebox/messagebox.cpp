#include "widgets/messagebox/messagebox.h"

#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QPointer>

#include <algorithm>

namespace {

constexpr int Border = 3;
constexpr int Margin = 20; // around and between message and buttons
constexpr int ButtonGap = 24;
constexpr int Air = 10; // around a box that is as large as the working area lets it be
constexpr int TitleTextSize = 20;
constexpr int MostCharacters = 8000; // more than the working area holds

// The buttons in the order in which they stand.
constexpr struct
{
    CMessageBox::Button button;
    const char* name;
    const char* text;
    bool isAffirmative;
} ButtonTable[] = {
    {CMessageBox::Ok, "ok", QT_TRANSLATE_NOOP("CMessageBox", "OK"), true},
    {CMessageBox::Yes, "yes", QT_TRANSLATE_NOOP("CMessageBox", "Yes"), true},
    {CMessageBox::No, "no", QT_TRANSLATE_NOOP("CMessageBox", "No"), false},
    {CMessageBox::Cancel, "cancel", QT_TRANSLATE_NOOP("CMessageBox", "Cancel"), false},
};

/** The text as far as anybody will see it: the work that a box makes does not grow with what it is given. */
QString bounded(const QString& text)
{
    return text.size() <= MostCharacters ? text : text.left(MostCharacters) + QStringLiteral("...");
}

int buttonHeight()
{
    return CWidgetStyle::getMetric(CWidgetStyle::MetricMessageButtonHeight);
}

} // namespace

CMessageBox::CMessageBox(const QString& title, const QString& text, Buttons buttons, QWidget* parent)
    : CDialog(parent)
    , m_pTitle(new CLabel(bounded(title).replace(QLatin1Char('\n'), QLatin1Char(' ')), this))
    , m_pText(new CLabel(bounded(text), this))
{
    setBackgroundColor(CWidgetStyle::ColorDialog);
    setBorderColor(QColor(Qt::gray));
    setBorderWidth(Border);
    setTitleLabel(m_pTitle);
    m_pTitle->setBackgroundColor(CWidgetStyle::ColorTitle);
    m_pTitle->setTextColor(CWidgetStyle::ColorTextLight);
    m_pTitle->setTextSize(TitleTextSize);
    m_pTitle->setBold(true);
    m_pTitle->setAlignment(Qt::AlignCenter);
    m_pText->setTextColor(CWidgetStyle::ColorTextDark);
    m_pText->setAlignment(Qt::AlignCenter);
    m_pText->setWordWrap(true);

    for (const auto& row : ButtonTable) {
        if (!buttons.testFlag(row.button))
            continue;
        auto* button = new CPushButton(tr(row.text), this);
        button->setObjectName(QLatin1String(row.name));
        if (row.isAffirmative)
            button->setAffirmative();
        else
            button->setQuiet();
        const Button answer = row.button;
        connect(button, &QAbstractButton::clicked, this, [this, answer] {
            m_answer = answer;
            done(answer);
        });
        m_buttons.append(button);
    }
    adjustToText();
}

void CMessageBox::setTitleBackgroundColor(const CThemeColor& color)
{
    m_pTitle->setBackgroundColor(color);
}

void CMessageBox::setTitleTextColor(const CThemeColor& color)
{
    m_pTitle->setTextColor(color);
}

void CMessageBox::setTitleTextSize(int pixels)
{
    m_pTitle->setTextSize(pixels);
    adjustToText();
}

void CMessageBox::setMessageTextSize(int pixels)
{
    m_pText->setTextSize(pixels);
    adjustToText();
}

void CMessageBox::setMessageTextColor(const CThemeColor& color)
{
    m_pText->setTextColor(color);
}

void CMessageBox::setMessageAlignment(Qt::Alignment alignment)
{
    m_pText->setAlignment(alignment);
}

QString CMessageBox::title() const
{
    return m_pTitle->text();
}

QString CMessageBox::text() const
{
    return m_pText->text();
}

int CMessageBox::exec()
{
    m_answer = NoButton;
    // The box may be deleted with its parent while it is up; then nothing of it may be read.
    const QPointer<CMessageBox> self(this);
    CDialog::exec();
    return self ? m_answer : NoButton;
}

CMessageBox::Button CMessageBox::information(
    QWidget* parent, const QString& title, const QString& text, Buttons buttons)
{
    const QPointer<CMessageBox> box = new CMessageBox(title, text, buttons, parent);
    const auto answer = static_cast<Button>(box->exec());
    delete box;
    return answer;
}

void CMessageBox::translate()
{
    for (CPushButton* button : qAsConst(m_buttons)) {
        for (const auto& row : ButtonTable) {
            if (button->objectName() == QLatin1String(row.name))
                button->setText(tr(row.text));
        }
    }
    adjustToText();
    CDialog::translate();
}

void CMessageBox::updateWidgetStyle()
{
    adjustToText();
    CDialog::updateWidgetStyle();
}

void CMessageBox::resizeEvent(QResizeEvent* event)
{
    CDialog::resizeEvent(event);
    layoutParts();
}

void CMessageBox::moveMarker(int arrowKey)
{
    // The buttons stand in one row: Up and Down go along it too.
    const bool back = arrowKey == Qt::Key_Left || arrowKey == Qt::Key_Up;
    CDialog::moveMarker(back ? Qt::Key_Left : Qt::Key_Right);
}

void CMessageBox::adjustToText()
{
    const QSize room = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea)
                           .marginsRemoved({Air, Air, Air, Air})
                           .size();
    const int widest = std::min(CWidgetStyle::getMetric(CWidgetStyle::MetricMessageMaxWidth), room.width());
    const int narrowest = std::min(CWidgetStyle::getMetric(CWidgetStyle::MetricMessageMinWidth), widest);
    const int frame = 2 * (Border + Margin);
    const int wanted = std::max({m_pText->sizeHint().width() + frame, m_pTitle->sizeHint().width() + frame,
        buttonRowWidth() + frame});
    const int width = std::max(narrowest, std::min(wanted, widest));

    const int height
        = 2 * Border + titleHeight() + Margin + textHeight(width) + Margin + buttonHeight() + Margin * 2 / 3;
    resize(width, std::min(height, room.height()));
    layoutParts();
}

void CMessageBox::layoutParts()
{
    const QRect inner = innerRect();
    m_pTitle->setGeometry(inner.left(), inner.top(), inner.width(), titleHeight());

    const int rowTop = inner.bottom() + 1 - Margin * 2 / 3 - buttonHeight();
    const int textTop = inner.top() + titleHeight() + Margin / 2;
    m_pText->setGeometry(
        inner.left() + Margin, textTop, inner.width() - 2 * Margin, rowTop - Margin / 2 - textTop);

    int left = inner.left() + (inner.width() - buttonRowWidth()) / 2;
    for (CPushButton* button : qAsConst(m_buttons)) {
        const int width = std::max(
            CWidgetStyle::getMetric(CWidgetStyle::MetricMessageButtonWidth), button->sizeHint().width());
        button->setGeometry(left, rowTop, width, buttonHeight());
        left += width + ButtonGap;
    }
}

int CMessageBox::buttonRowWidth() const
{
    int width = 0;
    for (const CPushButton* button : m_buttons)
        width += std::max(CWidgetStyle::getMetric(CWidgetStyle::MetricMessageButtonWidth),
                     button->sizeHint().width())
            + ButtonGap;
    return std::max(0, width - ButtonGap);
}

int CMessageBox::textHeight(int boxWidth) const
{
    // At least two lines, so that short messages have air around them.
    const int text = m_pText->heightForWidth(boxWidth - 2 * (Border + Margin));
    return std::max(text, 2 * m_pText->fontMetrics().lineSpacing());
}

int CMessageBox::titleHeight() const
{
    const int least = CWidgetStyle::getMetric(CWidgetStyle::MetricMessageTitleHeight);
    return std::max(least, m_pTitle->sizeHint().height() + Margin / 2);
}
