#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "engine/TransactionEntry.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// OK wants an account and an amount; the GST button an amount and an
// adjustment of a withdrawal, and no account. OK writes the amount as typed
// (its comma a point) and the total signed by the buttons alone, the
// adjustment adding to the amount's size.
TEST(TransactionEntry, TheButtonsRefuseWhatTheyLackAndOkSignsTheTotal)
{
    struct Case {
        int account;
        QString amount;
        QString adjustment;
        bool deposit;
        bool ok;
        bool gst;
        QString amountCell;
        QString total;
    } const cases[] = {
        {1, u"100"_s, u"5"_s, false, true, true, u"-100"_s, u"-105.00"_s},
        {0, u"100"_s, u"5"_s, false, false, true, u"-100"_s, u"-105.00"_s},
        {1, {}, u"1"_s, false, false, false, u"-"_s, u"-1.00"_s},
        {1, u"5"_s, {}, false, true, false, u"-5"_s, u"-5.00"_s},
        {1, u"100"_s, u"5"_s, true, true, false, u"100"_s, u"105.00"_s},
        {1, u"-100"_s, u"5"_s, true, true, false, u"-100"_s, u"105.00"_s}, // -105 shown unsigned
        {1, u"10,5"_s, u"1,5"_s, true, true, false, u"10.5"_s, u"11.50"_s}, // the adjustment up to its comma
    };
    Listbox table(u"transBox"_s, TransCol::Count);
    table.AddRow(u""_s);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.account << " " << c.amount.toStdString() << " " << c.deposit);
        TransactionForm form;
        form.account = c.account;
        form.amount = c.amount;
        form.adjustment = c.adjustment;
        form.deposit = c.deposit;
        EXPECT_EQ(okEnabled(form), c.ok);
        EXPECT_EQ(gstEnabled(form), c.gst);
        EXPECT_EQ(okRefusal(form).isEmpty(), c.ok);
        EXPECT_EQ(gstRefusal(form).isEmpty(), c.gst);
        writeTransaction(table, 0, form);
        EXPECT_EQ(table.Cell(0, TransCol::Amount), c.amountCell);
        EXPECT_EQ(table.Cell(0, TransCol::Transaction), c.total);
    }
}
