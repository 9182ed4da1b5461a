#pragma once

#include "widgets/pushbutton/pushbutton.h"

/** One touchable row of a tool box: a page header or an item. Made by CToolBox. */
class CToolBoxButton : public CPushButton
{
    Q_OBJECT

public:
    enum Role { PageHeader, Item };

    /** @param iconName picture resource, decoded at the first paint; a missing one leaves its place empty */
    CToolBoxButton(Role role, const QString& iconName, const QString& text, int id, QWidget* parent);

    Role role() const { return m_role; }
    /** The item's identifier; -1 for a page header. */
    int id() const { return m_id; }
    /** A page header that is open, or the item chosen last. */
    void setActive(bool active);
    bool isActive() const { return m_active; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintHeader(QPainter& painter) const;
    void paintItem(QPainter& painter) const;
    void paintCaption(
        QPainter& painter, int iconCenter, int textLeft, int textRight, const QColor& color) const;

    Role m_role;
    QString m_iconName;
    int m_id;
    bool m_active = false;
    QPixmap m_icon;
};
