// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Vocabulary.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace quorvin {

TEST(Vocabulary, ManyThreadsShareOneTerm)
{
    std::vector<TermPtr> terms(8);
    {
        std::vector<std::jthread> threads;
        for (TermPtr &term : terms) {
            threads.emplace_back([&term] {
                for (int i = 0; i < 1000; ++i)
                    term = internTerm(QStringLiteral("Key%1").arg(i), QStringLiteral("Label"));
            });
        }
    }
    for (const TermPtr &term : terms)
        EXPECT_EQ(term, terms.front());
}

TEST(Vocabulary, NamesWithoutEndDoNotStay)
{
    for (int i = 0; i < kMaxInternedTerms; ++i)
        internTerm(QStringLiteral("Flood%1").arg(i), QString());
    const auto first = internTerm(QStringLiteral("Late"), QStringLiteral("Late"));
    const auto second = internTerm(QStringLiteral("Late"), QStringLiteral("Late"));
    EXPECT_NE(first, second);
    EXPECT_EQ(second->label, QStringLiteral("Late"));
}

} // namespace quorvin
