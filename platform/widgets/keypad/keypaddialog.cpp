#include "widgets/keypad/keypaddialog.h"

#include "widgets/checkbox/checkbox.h"
#include "widgets/keypad/keypadlayout.h"
#include "widgets/keypad/padvalidator.h"
#include "widgets/keywatch/keywatch.h"
#include "widgets/label/label.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/touchregion/touchregion.h"
#include "widgets/widgetstyle/stylepainter.h"
#include "widgets/widgetstyle/widgetstyle.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace {

constexpr int NarrowWidth = 400;
constexpr int TitleHeight = 40;
constexpr int TitleTextSize = 20;
constexpr int SmallestTitle = 15;
constexpr int TextHeight = 46;
constexpr int TextSize = 22;
constexpr int Margin = 8;
constexpr int Gap = 6;
constexpr int CountWidth = 90; // at least
constexpr int AnswerWidth = 170;
constexpr int SmallestClear = 84;
constexpr int FieldRadius = 6;
constexpr int FrameRoom = 3; // between the text's widget and the field's edge

constexpr struct
{
    CKeyPadKey::Action action;
    const char* name;
} ActionNames[] = {
    {CKeyPadKey::ToggleShift, "shift"},
    {CKeyPadKey::ChangePage, "page"},
    {CKeyPadKey::Backspace, "backspace"},
    {CKeyPadKey::CursorLeft, "left"},
    {CKeyPadKey::CursorRight, "right"},
    {CKeyPadKey::ClearText, "clear"},
};

bool isPlain(CKeyPadFactory::KeyPadType type)
{
    return type == CKeyPadFactory::KeyPadText || type == CKeyPadFactory::KeyPadPassword;
}

/** Everything that the keys of a pad can type. */
QString charactersOf(CKeyPadFactory::KeyPadType type)
{
    QString characters;
    for (const KeyPadPage& page : keyPadPages(type)) {
        for (const QString& row : page.rows)
            std::copy_if(row.begin(), row.end(), std::back_inserter(characters),
                [](QChar sign) { return sign.isPrint(); });
    }
    return characters;
}

} // namespace

CKeyPadDialog::CKeyPadDialog(
    const QString& title, const QString& text, CKeyPadFactory::KeyPadType type, QWidget* parent)
    : CDialog(parent)
    , m_type(type)
    , m_pTitle(new CLabel(title, this))
    , m_pCount(new CLabel(this))
    , m_pText(new QLineEdit(this))
    , m_pValidator(new CPadValidator(m_pText))
{
    setBackgroundColor(CWidgetStyle::ColorScreen);
    setBorderColor(CWidgetStyle::ColorFrame);
    setBorderWidth(1);
    m_pTitle->setBackgroundColor(CWidgetStyle::ColorTitle);
    m_pTitle->setBorderColor(CWidgetStyle::ColorTitle); // keeps the text off the edges
    m_pTitle->setBorderWidth(Margin, 0, Margin, 0);
    m_pTitle->setBold(true);
    m_pTitle->setAlignment(Qt::AlignCenter);
    m_pCount->setAlignment(Qt::AlignCenter);
    m_pCount->setBackgroundColor(CWidgetStyle::ColorTitle);
    m_pCount->setObjectName(QStringLiteral("count"));
    m_pCount->hide();

    m_pText->setObjectName(QStringLiteral("text"));
    m_pText->setFrame(false);
    m_pText->setContextMenuPolicy(Qt::NoContextMenu);
    m_pText->installEventFilter(this);
    m_pText->setValidator(m_pValidator);
    connect(m_pText, &QLineEdit::textChanged, this, &CKeyPadDialog::showCount);
    if (parentWidget())
        parentWidget()->installEventFilter(this);
    // The text stands for the field that is edited: on a page, the application hears its keys.
    if (!parentWidget() || !qobject_cast<QDialog*>(parentWidget()->window()))
        m_pText->installEventFilter(qApp);

    makeKeys();
    m_pText->setText(text); // before the limits: what this pad cannot type can still be read and deleted
    if (!isPlain(type))
        setAllowedCharacters(charactersOf(type));
    styleText();

    QRect place = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionPageFrame);
    if (type == CKeyPadFactory::KeyPadNumber) {
        const QRect page = CWidgetStyle::getScreenRegion(CWidgetStyle::RegionWorkingArea);
        place.setRect(page.center().x() - NarrowWidth / 2, place.top(), NarrowWidth, place.height());
    }
    if (parentWidget())
        place.translate(parentWidget()->window()->mapToGlobal(QPoint(0, 0)));
    setGeometry(place);
}

void CKeyPadDialog::setMaxLength(int characters)
{
    m_pText->setMaxLength(characters > 0 ? characters : 32767); // QLineEdit's own limit
    m_pCount->setVisible(characters > 0);
    showCount();
    layoutParts();
}

void CKeyPadDialog::setMaxBytes(int bytes)
{
    m_pText->setText(CPadValidator::cutToBytes(text(), bytes));
    m_pValidator->setMaxBytes(bytes);
    m_pCount->setVisible(bytes > 0);
    showCount();
    layoutParts();
}

void CKeyPadDialog::setHint(const QString& hint)
{
    m_pCount->setText(hint);
    disconnect(m_pText, &QLineEdit::textChanged, this, &CKeyPadDialog::showCount);
    m_pCount->show();
    layoutParts();
}

void CKeyPadDialog::setAllowedCharacters(const QString& characters)
{
    m_allowed = characters;
    // What is there already is let pass: while any of it is left, nothing could be deleted else.
    m_pValidator->setAllowed(characters.isEmpty() ? QString() : characters + text());
    enableKeys();
}

void CKeyPadDialog::setPasswordShown(bool shown)
{
    if (m_pShowPassword)
        m_pShowPassword->setChecked(shown);
}

QString CKeyPadDialog::text() const
{
    return m_pText->text();
}

bool CKeyPadDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Hide && !isAside())
        reject(); // the page was left: by a key, or by whoever else shows another
    if (watched == m_pText && event->type() == QEvent::FocusIn) {
        auto* focus = static_cast<QFocusEvent*>(event);
        // A dialog comes up with "tab" focus, which selects all: the first key would replace the text.
        if (focus->reason() == Qt::TabFocusReason) {
            QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
            QCoreApplication::sendEvent(m_pText, &plain);
            return true;
        }
    }
    if (watched == m_pText && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // The text has the keyboard, but these belong to the marker.
            keyPressEvent(key);
            return true;
        default:
            break;
        }
    }
    return CDialog::eventFilter(watched, event);
}

void CKeyPadDialog::updateWidgetStyle()
{
    CDialog::updateWidgetStyle();
    styleText();
}

void CKeyPadDialog::accept()
{
    const QString refusal = m_check ? m_check(text()) : QString();
    if (refusal.isEmpty()) {
        CDialog::accept();
        return;
    }
    // The box goes with the pad, also while it is up.
    const QPointer<CMessageBox> box
        = new CMessageBox(tr("Value not allowed"), refusal, CMessageBox::Ok, this);
    box->setTitleBackgroundColor(CWidgetStyle::ColorAlert);
    box->move(geometry().center() - box->rect().center());
    box->exec();
    delete box;
}

void CKeyPadDialog::paintEvent(QPaintEvent* event)
{
    CDialog::paintEvent(event);
    QPainter painter(this);
    CStylePainter::paintPlate(painter, m_pText->geometry().adjusted(-Margin, -FrameRoom, Margin, FrameRoom),
        FieldRadius, CWidgetStyle::getColor(CWidgetStyle::ColorField),
        CWidgetStyle::getColor(CWidgetStyle::ColorAccent), 1);
}

void CKeyPadDialog::resizeEvent(QResizeEvent* event)
{
    CDialog::resizeEvent(event);
    layoutParts();
}

void CKeyPadDialog::showEvent(QShowEvent* event)
{
    CDialog::showEvent(event);
    m_pText->setFocus();
    m_pText->end(false);
}

void CKeyPadDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !isKeyRepetition(*event) && !markedButton()) {
        if (!isTouchDropped(m_pOk))
            m_pOk->animateClick();
        event->accept();
        return;
    }
    CDialog::keyPressEvent(event);
}

void CKeyPadDialog::makeKeys()
{
    for (const KeyPadPage& page : keyPadPages(m_type)) {
        QVector<CKeyPadKey*> keys;
        for (const QString& row : page.rows) {
            for (const QChar sign : row)
                keys << makeKey(sign);
        }
        m_keys << keys;
    }
    m_pClear = makeKey(QChar(CKeyPadKey::ClearText));
    m_pClear->setText(tr("Clear"));
    if (m_type == CKeyPadFactory::KeyPadPassword) {
        m_pShowPassword = new CCheckBox(tr("Show password"), this);
        m_pShowPassword->setObjectName(QStringLiteral("showPassword"));
        const auto echo
            = [this](bool shown) { m_pText->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password); };
        connect(m_pShowPassword, &QAbstractButton::toggled, this, echo);
        echo(false);
    }
    m_pCancel = new CPushButton(tr("Cancel"), this);
    m_pCancel->setObjectName(QStringLiteral("cancel"));
    connect(m_pCancel, &QAbstractButton::clicked, this, &CKeyPadDialog::reject);
    m_pOk = new CPushButton(tr("OK"), this);
    m_pOk->setObjectName(QStringLiteral("ok"));
    m_pOk->setAffirmative();
    connect(m_pOk, &QAbstractButton::clicked, this, &CKeyPadDialog::accept);
    labelKeys();
}

CKeyPadKey* CKeyPadDialog::makeKey(QChar sign)
{
    CKeyPadKey* key = nullptr;
    for (const auto& row : ActionNames) {
        if (sign == QChar(row.action)) {
            key = new CKeyPadKey(row.action, this);
            key->setObjectName(QLatin1String(row.name));
        }
    }
    if (!key)
        key = new CKeyPadKey(sign, this);
    connect(key, &QAbstractButton::clicked, this, [this, key] { pressKey(key); });
    return key;
}

void CKeyPadDialog::pressKey(const CKeyPadKey* key)
{
    switch (key->action()) {
    case CKeyPadKey::TypeCharacter:
        m_pText->insert(m_shift == ShiftOff ? key->character() : key->character().toUpper());
        if (m_shift == ShiftOnce)
            setShift(ShiftOff);
        break;
    case CKeyPadKey::ToggleShift:
        setShift(m_shift == ShiftOff ? ShiftOnce : m_shift == ShiftOnce ? ShiftLocked : ShiftOff);
        break;
    case CKeyPadKey::ChangePage:
        nextPage();
        break;
    case CKeyPadKey::Backspace:
        m_pText->backspace();
        break;
    case CKeyPadKey::CursorLeft:
        m_pText->cursorBackward(false);
        break;
    case CKeyPadKey::CursorRight:
        m_pText->cursorForward(false);
        break;
    case CKeyPadKey::ClearText:
        m_pText->clear();
        break;
    }
}

void CKeyPadDialog::nextPage()
{
    const CPushButton* marked = markedButton();
    m_page = (m_page + 1) % m_keys.size();
    labelKeys();
    layoutParts();
    if (!marked || marked->isVisibleTo(this))
        return;
    // The marker stays on the key that was pressed, though it is another one now.
    for (CKeyPadKey* key : qAsConst(m_keys[m_page])) {
        if (key->action() == CKeyPadKey::ChangePage)
            key->setArrowKeyFocus(true);
    }
    const_cast<CPushButton*>(marked)->setArrowKeyFocus(false);
}

void CKeyPadDialog::setShift(ShiftState state)
{
    m_shift = state;
    labelKeys();
}

void CKeyPadDialog::labelKeys()
{
    for (int page = 0; page < m_keys.size(); ++page) {
        for (CKeyPadKey* key : qAsConst(m_keys[page])) {
            key->setVisible(page == m_page);
            const QChar character = key->character();
            if (key->action() == CKeyPadKey::ChangePage) {
                key->setText(page == 0 ? QStringLiteral("123!?") : QStringLiteral("abc"));
            } else if (key->action() == CKeyPadKey::ToggleShift) {
                key->setHeld(m_shift != ShiftOff, m_shift == ShiftLocked);
            } else if (character == QLatin1Char(' ')) {
                key->setText(tr("Space"));
                key->setTextSize(0);
            } else if (!character.isNull()) {
                key->setText(m_shift == ShiftOff ? QString(character) : QString(character.toUpper()));
            }
        }
    }
}

void CKeyPadDialog::enableKeys()
{
    for (const auto& page : qAsConst(m_keys)) {
        for (CKeyPadKey* key : page) {
            if (key->action() == CKeyPadKey::TypeCharacter)
                key->setEnabled(m_allowed.isEmpty() || m_allowed.contains(key->character()));
        }
    }
}

void CKeyPadDialog::showCount()
{
    const int bytes = m_pValidator->maxBytes();
    m_pCount->setText(QStringLiteral("%1 / %2")
                          .arg(bytes > 0 ? text().toUtf8().size() : text().size())
                          .arg(bytes > 0 ? bytes : m_pText->maxLength()));
}

void CKeyPadDialog::styleText()
{
    QFont font = CWidgetStyle::getFont(CWidgetStyle::FontText);
    font.setPixelSize(TextSize);
    m_pText->setFont(font);
    QPalette palette = m_pText->palette();
    palette.setColor(QPalette::Base, CWidgetStyle::getColor(CWidgetStyle::ColorField));
    palette.setColor(QPalette::Text, CWidgetStyle::getColor(CWidgetStyle::ColorTextLight));
    palette.setColor(QPalette::Highlight, CWidgetStyle::getColor(CWidgetStyle::ColorPressed));
    palette.setColor(QPalette::HighlightedText, CWidgetStyle::getColor(CWidgetStyle::ColorTextLight));
    m_pText->setPalette(palette);
}

void CKeyPadDialog::layoutParts()
{
    const QRect inner = innerRect();
    const int count
        = m_pCount->isVisibleTo(this) ? std::max(CountWidth, m_pCount->sizeHint().width() + 2 * Margin) : 0;
    m_pTitle->setGeometry(inner.left(), inner.top(), inner.width() - count, TitleHeight);
    int titleSize = TitleTextSize;
    do
        m_pTitle->setTextSize(titleSize);
    while (m_pTitle->sizeHint().width() > m_pTitle->width() && --titleSize >= SmallestTitle);
    m_pCount->setGeometry(inner.right() + 1 - count, inner.top(), count, TitleHeight);

    const QRect area = inner.adjusted(Margin, TitleHeight + Margin, -Margin, -Margin);
    const int clearWidth = std::max(SmallestClear, m_pClear->sizeHint().width());
    const QRect clear(area.right() + 1 - clearWidth, area.top(), clearWidth, TextHeight);
    m_pClear->setGeometry(clear);
    m_pText->setGeometry(area.left() + Margin, area.top() + FrameRoom,
        clear.left() - Gap - area.left() - 2 * Margin, TextHeight - 2 * FrameRoom);

    const KeyPadPage& page = keyPadPages(m_type).at(m_page);
    const int top = area.top() + TextHeight + Margin;
    const double pitch = double(area.bottom() + 1 + Gap - top) / (page.rows.size() + 1);
    const auto rowArea = [&](int row) {
        const int from = top + int(row * pitch), to = top + int((row + 1) * pitch) - Gap;
        return QRect(area.left(), from, area.width(), to - from);
    };
    int index = 0;
    for (int row = 0; row < page.rows.size(); ++row) {
        for (const QRect& place : keyPlaces(page.rows[row], page.columns, rowArea(row), Gap))
            m_keys[m_page][index++]->setGeometry(place);
    }

    const QRect answers = rowArea(page.rows.size());
    const int width = m_type == CKeyPadFactory::KeyPadNumber ? (answers.width() - Gap) / 2 : AnswerWidth;
    m_pOk->setGeometry(answers.right() + 1 - width, answers.top(), width, answers.height());
    m_pCancel->setGeometry(m_pOk->geometry().translated(-width - Gap, 0));
    if (m_pShowPassword) {
        m_pShowPassword->setGeometry(
            answers.left(), answers.top(), m_pCancel->x() - Gap - answers.left(), answers.height());
    }
    update();
}
