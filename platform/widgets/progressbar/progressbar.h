#pragma once

#include <QColor>
#include <QProgressBar>

/** A flat level bar with a border; a QProgressBar in its range and value. */
class CProgressBar : public QProgressBar
{
    Q_OBJECT

public:
    explicit CProgressBar(QWidget *parent = nullptr);
    void setBorderColor(const QColor &color);
    void setBarColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_border;
    QColor m_bar;
};
