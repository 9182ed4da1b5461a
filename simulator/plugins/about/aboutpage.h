#pragma once

#include "widgets/widget/widget.h"

#include <QBasicTimer>
#include <QPair>
#include <QString>
#include <QVector>

class CLabel;
class CPushButton;

/**
 * What the unit is and how it is: versions, uptime, memory and the addresses of the interfaces that are up,
 * a name and a value a row. Rows that do not fit go to further pages.
 *
 * Read anew once a second while it is visible; a row is painted again only when its text changed.
 */
class CAboutPage : public CWidget
{
    Q_OBJECT

public:
    CAboutPage(const QString& pluginVersion, QWidget* parent);

public slots:
    void translate() override;
    void updateWidgetStyle() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    using Row = QPair<QString, QString>; // name, value
    struct RowLabels
    {
        CWidget* band;
        CLabel* name;
        CLabel* value;
    };

    QVector<Row> readRows() const;
    void refresh();
    void addLabels(int count);
    void placeControls(int rowsPerPage);
    void turnPage(int by);

    QString m_pluginVersion;
    QVector<RowLabels> m_labels;
    CPushButton* m_up;
    CPushButton* m_down;
    CLabel* m_position;
    QBasicTimer m_timer;
    int m_page = 0;
    int m_pageCount = 1;
};
