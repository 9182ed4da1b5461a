#include "widgets/infopage/infopage.h"

#include "widgets/label/label.h"
#include "widgets/pushbutton/pushbutton.h"

namespace {

constexpr int TitleTextSize = 24; // pixels
constexpr int TextSize = 18;

} // namespace

CInfoPage::CInfoPage(QWidget* parent)
    : CDialog(parent)
    , m_pTitleLabel(addLabel(QStringLiteral("title")))
    , m_pBtnWidget(new CWidget(this))
    , m_pBtnOk(new CPushButton(m_pBtnWidget))
{
    m_pBtnOk->setObjectName(QStringLiteral("ok"));
    m_pBtnOk->setQuiet();
    connect(m_pBtnOk, &QAbstractButton::clicked, this, &CInfoPage::onOk);
    m_pTitleLabel->setTextSize(TitleTextSize);
    m_pTitleLabel->setBold(true);
    m_pTitleLabel->setAlignment(Qt::AlignCenter);
}

CLabel* CInfoPage::addLabel(const QString& objectName)
{
    auto* label = new CLabel(this);
    label->setObjectName(objectName);
    label->setTextSize(TextSize);
    return label;
}

void CInfoPage::dress(const CThemeColor& ground, const CThemeColor& border, int borderWidth)
{
    setBackgroundColor(ground);
    setTextColor(CWidgetStyle::ColorTextDark);
    setBorderColor(border);
    setBorderWidth(borderWidth);
    m_pTitleLabel->setBackgroundColor(CWidgetStyle::ColorTitle);
    m_pTitleLabel->setTextColor(CWidgetStyle::ColorTextLight);
    setTitleLabel(m_pTitleLabel);
}

int CInfoPage::placeFrame(int stripTop, int rowHeight)
{
    const QRect inner = innerRect();
    m_pTitleLabel->setGeometry(inner.left(), inner.top(), inner.width(), TitleHeight);
    m_pBtnWidget->setGeometry(inner.left(), stripTop, inner.width(), rowHeight + 2 * Gap);
    m_pBtnOk->setGeometry(
        (inner.width() - ButtonWidth) / 2, (rowHeight - ButtonHeight) / 2, ButtonWidth, ButtonHeight);
    return stripTop + rowHeight + 2 * Gap + (rect().bottom() - inner.bottom());
}

void CInfoPage::setBackgroundColor(const CThemeColor& color)
{
    CDialog::setBackgroundColor(color);
    for (CLabel* label : findChildren<CLabel*>())
        label->setBackgroundColor(color);
}

void CInfoPage::setTextColor(const CThemeColor& color)
{
    for (CLabel* label : findChildren<CLabel*>())
        label->setTextColor(color);
}

void CInfoPage::onOk()
{
    accept();
}
