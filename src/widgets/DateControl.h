#pragma once

#include <QDateEdit>
#include <QDateTime>

// A compact field for one date. Its value is a moment: the day shown, at the
// time of day the control was made (or last given), so that a range read from
// two such controls compares as the system compares it. It always holds a
// date; changing it does nothing until its window reads it.
class DateControl : public QDateEdit {
    Q_OBJECT

public:
    explicit DateControl(QWidget* parent = nullptr);

    // The day shown at the time of day held.
    QDateTime DateValue() const;
    void setDateValue(const QDateTime& value);

private:
    QTime timeOfDay_;
};
