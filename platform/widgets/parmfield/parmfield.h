#pragma once

#include "widgets/pushbutton/pushbutton.h"

/**
 * Base of the named parameters: caption on the left, the value in a field on the right, and a sign that says
 * what a touch does. Fields of one width stand in line below each other. Without a caption the value takes
 * the whole width, for a field that another control beside it names.
 */
class CParmField : public CPushButton
{
    Q_OBJECT

public:
    void setCaption(const QString& caption);
    QString caption() const { return m_caption; }

    QSize sizeHint() const override;

protected:
    CParmField(const QString& caption, QWidget* parent);

    /** The value as it is shown. */
    virtual QString shownValue() const = 0;
    /** The longest value that may be shown, for the size hint. */
    virtual QString longestValue() const { return shownValue(); }
    /** Draws the sign in the middle of `area` with the painter's pen. */
    virtual void paintSign(QPainter& painter, const QRect& area) const = 0;
    /** To be called when shownValue() has changed. */
    void valueChanged();
    /** Where the value stands, in own coordinates: the right half, or all of it without a caption. */
    QRect valueRect() const;

    void paintEvent(QPaintEvent* event) override;

private:
    QString m_caption;
};
