#pragma once
// The three custom sort numbers a task dialog gives a new place: in all
// tasks, on the Current List and in its project. A slot of 1 or more is
// known and asks nothing; otherwise the number is the row count of its
// query plus one, counted without loading the rows.

#include <cstdint>
#include <string>

#include "store/Query.h"

namespace qv {

class CustomSortNumbers {
public:
    // Which data class counts: the two dialogs read through different ones,
    // which only shows in the module a store fault is reported under.
    enum class Counter { StatusList, NewTask };

    explicit CustomSortNumbers(Counter counter) : counter_(counter) {}

    [[nodiscard]] int32_t utilCustSortQV();
    [[nodiscard]] int32_t utilCustCur();
    // The project's number; a slot once filled keeps the first project's.
    [[nodiscard]] int32_t utilCustProj(const std::string& projectKey);

    // Writes touch no store; 0 makes the next read count again.
    void setUtilCustSortQV(int32_t n) { qv_ = n; }
    void setUtilCustCur(int32_t n) { cur_ = n; }
    void setUtilCustProj(int32_t n) { proj_ = n; }

private:
    [[nodiscard]] int32_t countPlusOne(const Query& query) const;

    Counter counter_;
    int32_t qv_ = 0;
    int32_t cur_ = 0;
    int32_t proj_ = 0;
};

}  // namespace qv
