#include "engine/TransactionEntry.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// OK wants an account and an amount; the GST button an amount and an
// adjustment of a withdrawal, and no account. Each refusal says so.
TEST(TransactionEntry, OkAndTheGstButtonAreRefusedWhatTheyLack)
{
    struct Case {
        const char* name;
        int account;
        QString amount;
        QString adjustment;
        bool deposit;
        bool ok;
        bool gst;
    };
    const Case cases[] = {
        {"everything", 1, u"5"_s, u"1"_s, false, true, true},
        {"no account", 0, u"5"_s, u"1"_s, false, false, true},
        {"no amount", 1, {}, u"1"_s, false, false, false},
        {"no adjustment", 1, u"5"_s, {}, false, true, false},
        {"a deposit", 1, u"5"_s, u"1"_s, true, true, false},
    };
    for (const Case& c : cases) {
        TransactionForm form;
        form.account = c.account;
        form.amount = c.amount;
        form.adjustment = c.adjustment;
        form.deposit = c.deposit;
        EXPECT_EQ(okRefusal(form), c.ok ? QString() : u"OK can't be pressed: it needs an account and an amount"_s)
            << c.name;
        EXPECT_EQ(gstRefusal(form), c.gst ? QString() : u"the GST button needs an amount, an adjustment and a withdrawal"_s)
            << c.name;
        EXPECT_EQ(okEnabled(form), c.ok) << c.name;
        EXPECT_EQ(gstEnabled(form), c.gst) << c.name;
    }
}
