#pragma once
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "../lfd/calculus_checks.h"
#include "support/generator_sweep.h"

// Every item of a list: its antiderivative differentiates back to its integrand, and the
// items of the statement and the solution match one to one.
inline void CheckIntegralList(const GeneratedProblem& p, int minimum, int checkedItems = 4) {
    const int n = std::clamp(p.fields.ItemCount, minimum, 26);
    const auto items = LetteredItems(p.statement);
    const auto answers = LetteredItems(p.solution);
    ASSERT_EQ(static_cast<int>(items.size()), n) << p.code;
    ASSERT_EQ(static_cast<int>(answers.size()), n) << p.code;
    std::set<std::string> seen;
    for (int i = 0; i < n; ++i) {
        EXPECT_TRUE(seen.insert(items[i]).second) << p.code << " repeats " << items[i];
        // The mathematics of a few items per problem is enough over thousands of problems.
        if (i >= checkedItems) continue;
        const std::string check = CheckAntiderivative(IntegrandOf(items[i]), WithoutConstant(answers[i]), 2);
        EXPECT_EQ(check, "") << p.code << " item " << i + 1 << ": " << items[i] << "  ->  " << answers[i];
    }
}

// The text with every number replaced by "N": the shape of its template.
inline std::string MaskNumbers(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] >= '0' && text[i] <= '9') {
            while (i + 1 < text.size() && text[i + 1] >= '0' && text[i + 1] <= '9') ++i;
            out += 'N';
        } else {
            out += text[i];
        }
    }
    return out;
}
