#pragma once
// The drop-down date: a day serial (below 2 means no date), its text, and
// the seven format settings the dialogs hand it. Only the user's changes
// raise Change, so that clearing a date from the program is not undone by
// the dialog's own Change handler.

#include <cstdint>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class QV_EXPORT DateBox {
public:
    // Date styles: the order of the parts in the text.
    enum DateStyle : int16_t { MonthDayYear = 0, DayMonthYear = 1, YearMonthDay = 2 };
    // Month styles: how the month is written.
    enum MonthStyle : int16_t { MonthNumber = 0, MonthShortName = 1, MonthName = 2 };

    explicit DateBox(std::string name = {});
    DateBox(const DateBox&) = delete;
    DateBox& operator=(const DateBox&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }

    [[nodiscard]] double value() const { return value_; }
    [[nodiscard]] bool hasDate() const { return value_ >= 2.0; }
    // Set by the program: no Change.
    void setValue(double serial);
    // Value 1 and an empty text.
    void clear() { setValue(1.0); }
    // Picked or typed by the user: raises Change when the value moves.
    void userSetValue(double serial);
    void userClear() { userSetValue(1.0); }
    // The date without a time, as the settings write it; empty for none.
    [[nodiscard]] std::string text() const;

    // Month names, comma-separated, January first.
    [[nodiscard]] const std::string& monthNames() const { return monthNames_; }
    void setMonthNames(const std::string& list);
    // Day names, semicolon-separated, as the week-start list gives them.
    [[nodiscard]] const std::string& dayNames() const { return dayNames_; }
    void setDayNames(const std::string& list);
    [[nodiscard]] const std::string& separator() const { return separator_; }
    void setSeparator(const std::string& s);
    [[nodiscard]] int16_t dateStyle() const { return dateStyle_; }
    void setDateStyle(int16_t s);
    [[nodiscard]] int16_t monthStyle() const { return monthStyle_; }
    void setMonthStyle(int16_t s);
    [[nodiscard]] const std::string& dayLetters() const { return dayLetters_; }
    void setDayLetters(const std::string& letters);
    // 0 Sunday to 6 Saturday.
    [[nodiscard]] int16_t firstDayOfWeek() const { return firstDayOfWeek_; }
    void setFirstDayOfWeek(int16_t d);

    // Month m (1 to 12) as the month list names it; empty if the list is short.
    [[nodiscard]] std::string monthName(int32_t m) const;

    Event<> Change;   // the user changed the date
    Event<> Changed;  // anything a view shows changed

private:
    [[nodiscard]] std::string monthText(int32_t m) const;

    std::string name_;
    double value_ = 1.0;
    std::string monthNames_;
    std::string dayNames_;
    std::string separator_ = "/";
    int16_t dateStyle_ = MonthDayYear;
    int16_t monthStyle_ = MonthNumber;
    std::string dayLetters_;
    int16_t firstDayOfWeek_ = 0;
};

}  // namespace qv
