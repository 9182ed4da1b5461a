#include "widgets/parmcombobox/parmcombobox.h"

#include "widgets/parmcombobox/parmlist.h"

#include <QPainter>

#include <algorithm>

CParmComboBox::CParmComboBox(
    const QString& caption, const QStringList& items, const QString& shownText, QWidget* parent)
    : CParmField(caption, parent)
    , m_items(items)
    , m_shown(shownText)
    , m_index(items.indexOf(shownText))
{
    connect(this, &QAbstractButton::clicked, this, &CParmComboBox::openList);
}

CParmComboBox::~CParmComboBox()
{
    delete m_list;
}

void CParmComboBox::addItems(const QStringList& items)
{
    closeList();
    m_items = items;
    if (m_index >= m_items.size())
        setCurrentIndex(-1);
    valueChanged();
}

QString CParmComboBox::currentText() const
{
    return m_index < 0 ? m_shown : m_items.value(m_index);
}

void CParmComboBox::setCurrentIndex(int index)
{
    const int wanted = index >= 0 && index < m_items.size() ? index : -1;
    m_shown.clear();
    valueChanged();
    if (m_index == wanted)
        return;
    m_index = wanted;
    emit currentIndexChanged(wanted);
}

void CParmComboBox::setShownText(const QString& text)
{
    const QPointer<CParmComboBox> self(this); // whoever hears of the index may take the box away
    setCurrentIndex(-1);
    if (!self)
        return;
    m_shown = text;
    valueChanged();
}

QString CParmComboBox::longestValue() const
{
    const auto longest = std::max_element(m_items.begin(), m_items.end(),
        [](const QString& one, const QString& other) { return one.size() < other.size(); });
    return longest == m_items.end() ? m_shown : *longest;
}

void CParmComboBox::paintSign(QPainter& painter, const QRect& area) const
{
    const QPointF center = QRectF(area).center();
    const QPointF line[] = {center + QPointF(-6, -3), center + QPointF(0, 3), center + QPointF(6, -3)};
    painter.drawPolyline(line, 3);
}

void CParmComboBox::hideEvent(QHideEvent* event)
{
    closeList();
    CParmField::hideEvent(event);
}

void CParmComboBox::openList()
{
    closeList();
    if (m_items.isEmpty())
        return;
    QWidget* page = window();
    const QRect field = valueRect();
    m_list = new CParmList(m_items, m_index, page);
    m_list->setMarkerShown(hasArrowKeyFocus());
    connect(m_list, &CParmList::chosen, this, &CParmComboBox::choose);
    m_list->openAt(QRect(mapTo(page, field.topLeft()), field.size()));
}

void CParmComboBox::closeList()
{
    if (m_list)
        m_list->close();
}

void CParmComboBox::choose(int index)
{
    // Either signal may rebuild the page that this box stands on.
    const QPointer<CParmComboBox> self(this);
    setCurrentIndex(index);
    if (self)
        emit activated(index);
}
