#include "exchange/ui/CustomImportWindow.h"

#include "books/FileStore.h"
#include "books/Globals.h"
#include "books/rowtable/ui/ListboxView.h"
#include "platform/BlockingServices.h"
#include "platform/Numbers.h"
#include "platform/ui/DialogLayout.h"

#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPreviewRecords = 20;
// Above this many records the import shows its progress and can be cancelled.
constexpr int kRecordsWithProgress = 10000;

const QChar kSeparators[] = {u',', u';', u'\t', u'|'};

QLineEdit* columnField(QWidget* parent, const QString& name, const QString& column)
{
    auto* field = named(new QLineEdit(column, parent), name);
    field->setFixedWidth(56);
    field->setAlignment(Qt::AlignCenter);
    return field;
}

// "3.9" counts 3, text without a number 0.
int columnOf(const QLineEdit* field)
{
    return std::max(truncated(Val(field->text())), 0);
}

} // namespace

CustomImportWindow::CustomImportWindow(const Listbox& accounts, const Listbox& transactions, Commit commit,
                                       QWidget* parent)
    : QDialog(parent)
    , accounts_(accounts)
    , transactions_(transactions)
    , commit_(std::move(commit))
{
    makeSheet(*this, u"CustomImportWindow"_s, u"Custom Data Import"_s, QSize(760, 560));

    StaticText8 = named(new QLabel(u"IMPORT TRANSACTIONS\n\nIndicate which import data columns correspond to the "
                                   "appropriate transaction column names below. If the import data does not contain "
                                   "data for a transaction column enter a zero."_s,
                                   this),
                        u"StaticText8"_s);
    StaticText8->setWordWrap(true);
    FileLabel = named(new QLabel(this), u"FileLabel"_s);

    SeparatorMenu = named(new QComboBox(this), u"SeparatorMenu"_s);
    SeparatorMenu->addItems({u"Comma Delimited"_s, u"Semicolon Delimited"_s, u"Tab Delimited"_s, u"Bar Delimited"_s});
    SkipFirst = named(new QSpinBox(this), u"SkipFirst"_s);
    SkipFirst->setRange(0, 1000000);
    SkipFirst->setValue(1);
    SkipLast = named(new QSpinBox(this), u"SkipLast"_s);
    SkipLast->setRange(0, 1000000);

    EditField31 = columnField(this, u"EditField31"_s, u"1"_s);
    EditField1 = columnField(this, u"EditField1"_s, u"2"_s);
    EditField2 = columnField(this, u"EditField2"_s, u"3"_s);
    EditField5 = columnField(this, u"EditField5"_s, u"4"_s);
    EditField3 = columnField(this, u"EditField3"_s, u"5"_s);
    DebitField = columnField(this, u"DebitField"_s, u"0"_s);
    CreditField = columnField(this, u"CreditField"_s, u"0"_s);
    AccountMenu = named(new QComboBox(this), u"AccountMenu"_s);
    AccountMenu->addItem(u"Account from the column"_s);
    for (int row = 1; row < accounts_.ListCount(); ++row)
        AccountMenu->addItem(accounts_.Cell(row, 1));
    DateOrderMenu = named(new QComboBox(this), u"DateOrderMenu"_s);
    DateOrderMenu->addItems({u"Year-Month-Day"_s, u"Day-Month-Year"_s, u"Month-Day-Year"_s});
    // The order chosen last in this run.
    DateOrderMenu->setCurrentIndex(Globals::gcanadianDate ? 1 : 0);
    DecimalMenu = named(new QComboBox(this), u"DecimalMenu"_s);
    DecimalMenu->addItems({u"Decimal mark: automatic"_s, u"Decimal mark: period"_s, u"Decimal mark: comma"_s});

    Preview = named(new ListboxView(PreviewTable, this), u"Preview"_s);
    Preview->setCellLook([this](int row, int, bool) {
        CellLook look;
        if (row < 0 || row >= int(judged_.size()))
            return look;
        // Grey what is left out; red the record that stops the import.
        const RecordState state = judged_[row].verdict.state;
        if (state == RecordState::Skipped || state == RecordState::PassedOver)
            look.text = QColor(150, 150, 150);
        if (row == firstRefused_) {
            look.background = QColor(255, 205, 205);
            look.text = QColor(170, 0, 0);
        }
        return look;
    });
    ProblemLabel = named(new QLabel(this), u"ProblemLabel"_s);
    ProblemLabel->setWordWrap(true);
    ProblemLabel->setStyleSheet(u"color: rgb(170, 0, 0);"_s);
    PushButton2 = named(new QPushButton(u"Cancel"_s, this), u"PushButton2"_s);
    PushButton1 = named(new QPushButton(u"Continue"_s, this), u"PushButton1"_s);
    PushButton1->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(StaticText8);
    layout->addWidget(FileLabel);
    auto* reading = new QHBoxLayout;
    reading->addWidget(SeparatorMenu);
    auto* skipFirstLabel = new QLabel(u"Skip first:"_s, this);
    skipFirstLabel->setBuddy(SkipFirst);
    reading->addWidget(skipFirstLabel);
    reading->addWidget(SkipFirst);
    auto* skipLastLabel = new QLabel(u"last:"_s, this);
    skipLastLabel->setBuddy(SkipLast);
    // "last" alone says too little out of its line.
    SkipLast->setAccessibleName(u"Skip last"_s);
    reading->addWidget(skipLastLabel);
    reading->addWidget(SkipLast);
    reading->addWidget(DateOrderMenu);
    reading->addWidget(DecimalMenu);
    reading->addStretch();
    layout->addLayout(reading);
    auto* columns = new QGridLayout;
    const std::pair<QString, QWidget*> fields[] = {
        {u"*Acc. Name"_s, EditField31}, {u"Acc Type"_s, EditField1}, {u"Date"_s, EditField2},
        {u"Amount"_s, EditField5},      {u"Debit"_s, DebitField},    {u"Credit"_s, CreditField},
        {u"Description"_s, EditField3},
    };
    columns->addWidget(named(new QLabel(u"Column #:"_s, this), u"StaticText7"_s), 1, 0);
    for (int i = 0; i < int(std::size(fields)); ++i) {
        auto* heading = new QLabel(fields[i].first, this);
        heading->setBuddy(fields[i].second);
        columns->addWidget(heading, 0, i + 1, Qt::AlignCenter);
        columns->addWidget(fields[i].second, 1, i + 1, Qt::AlignCenter);
    }
    columns->addWidget(AccountMenu, 1, int(std::size(fields)) + 1);
    columns->setColumnStretch(int(std::size(fields)) + 2, 1);
    layout->addLayout(columns);
    layout->addWidget(Preview, 1);
    layout->addWidget(ProblemLabel);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(PushButton2);
    buttons->addWidget(PushButton1);
    layout->addLayout(buttons);
    Preview->setAccessibleName(u"Preview"_s);
    // Tab follows the lines as they read, left to right.
    QWidget* const readingOrder[] = {SeparatorMenu, SkipFirst, SkipLast, DateOrderMenu, DecimalMenu,
                                     EditField31,   EditField1, EditField2, EditField5,  DebitField,
                                     CreditField,   EditField3, AccountMenu, Preview,    PushButton2,
                                     PushButton1};
    for (size_t i = 1; i < std::size(readingOrder); ++i)
        setTabOrder(readingOrder[i - 1], readingOrder[i]);

    for (QLineEdit* field : {EditField31, EditField1, EditField2, EditField5, DebitField, CreditField, EditField3})
        connect(field, &QLineEdit::textChanged, this, &CustomImportWindow::updatePreview);
    for (QComboBox* menu : {SeparatorMenu, AccountMenu, DecimalMenu})
        connect(menu, &QComboBox::currentIndexChanged, this, &CustomImportWindow::updatePreview);
    connect(DateOrderMenu, &QComboBox::currentIndexChanged, this, [this](int order) {
        Globals::gcanadianDate = order == 1;
        updatePreview();
    });
    for (QSpinBox* skip : {SkipFirst, SkipLast})
        connect(skip, &QSpinBox::valueChanged, this, &CustomImportWindow::updatePreview);
    connect(PushButton1, &QPushButton::clicked, this, &CustomImportWindow::PushButton1_Action);
    connect(PushButton2, &QPushButton::clicked, this, &QDialog::close);
    EditField31->setFocus();
}


bool CustomImportWindow::openFile(const QString& path)
{
    const FileContent file = readPlainFile(path);
    if (!file.problem.isEmpty() || !file.bytes) {
        MsgBox(u"Quillmark couldn't read \"%1\": %2."_s.arg(QFileInfo(path).fileName(),
                                                            file.problem.isEmpty() ? u"there is no such file"_s
                                                                                   : file.problem));
        return false;
    }
    bytes_ = *file.bytes;
    FileLabel->setText(u"File: "_s + QFileInfo(path).fileName());
    const QChar guessed = guessSeparator(decodeImportText(bytes_));
    const auto item = std::find(std::begin(kSeparators), std::end(kSeparators), guessed);
    SeparatorMenu->setCurrentIndex(int(item - std::begin(kSeparators)));
    updatePreview();
    return true;
}

ImportMapping CustomImportWindow::mapping() const
{
    ImportMapping mapping;
    mapping.separator = kSeparators[std::max(SeparatorMenu->currentIndex(), 0)];
    mapping.skipFirst = SkipFirst->value();
    mapping.skipLast = SkipLast->value();
    mapping.accountColumn = columnOf(EditField31);
    mapping.fixedAccount = AccountMenu->currentIndex() > 0 ? AccountMenu->currentText() : QString();
    mapping.typeColumn = columnOf(EditField1);
    mapping.dateColumn = columnOf(EditField2);
    mapping.amountColumn = columnOf(EditField5);
    mapping.debitColumn = columnOf(DebitField);
    mapping.creditColumn = columnOf(CreditField);
    mapping.descriptionColumn = columnOf(EditField3);
    mapping.dateOrder = DateOrder(std::max(DateOrderMenu->currentIndex(), 0));
    mapping.decimalMark = DecimalMark(std::max(DecimalMenu->currentIndex(), 0));
    return mapping;
}

void CustomImportWindow::updatePreview()
{
    const ImportMapping map = mapping();
    if (separatorRead_ != map.separator) {
        records_ = readRecords(decodeImportText(bytes_), map.separator);
        separatorRead_ = map.separator;
    }
    judged_ = judgeRecords(records_, map, kPreviewRecords);

    // A column for the line, then the file's columns, the mapped ones named.
    int columns = 1;
    for (const JudgedRecord& one : judged_)
        columns = std::min(std::max(columns, int(one.record.fields.size())), PreviewTable.ColumnCount() - 1);
    PreviewTable.DeleteAllRows();
    const std::pair<int, QString> names[] = {
        {map.fixedAccount.isEmpty() ? map.accountColumn : 0, u"Account"_s},
        {map.typeColumn, u"Type"_s},
        {map.dateColumn, u"Date"_s},
        {map.amountColumn, u"Amount"_s},
        {map.debitColumn, u"Debit"_s},
        {map.creditColumn, u"Credit"_s},
        {map.descriptionColumn, u"Description"_s},
    };
    PreviewTable.SetHeading(0, u"Line"_s);
    PreviewTable.setColumnWidthPercent(0, 8);
    for (int column = 1; column < PreviewTable.ColumnCount(); ++column) {
        QString heading = QString::number(column);
        for (const auto& [mapped, name] : names)
            if (mapped == column)
                heading += u" \u2192 "_s + name;
        PreviewTable.SetHeading(column, heading);
        // Columns the file doesn't have take no room.
        PreviewTable.setColumnWidthPercent(column, column <= columns ? 92.0 / columns : 0);
    }
    QString problem = mappingProblem(map);
    firstRefused_ = -1;
    for (const JudgedRecord& one : judged_) {
        PreviewTable.AddRow(QString::number(one.record.line));
        for (int column = 1; column <= columns; ++column)
            PreviewTable.SetCell(PreviewTable.LastIndex(), column, one.record.fields.value(column - 1));
        if (firstRefused_ < 0 && one.verdict.state == RecordState::Refused) {
            firstRefused_ = PreviewTable.LastIndex();
            if (problem.isEmpty())
                problem = u"Line %1: %2."_s.arg(one.record.line).arg(one.verdict.problem);
        }
    }
    if (problem.isEmpty() && records_.unclosedQuoteLine > 0)
        problem = u"Line %1: a field in quotes begins here and never ends."_s.arg(records_.unclosedQuoteLine);
    Preview->applyColumnSettings();
    ProblemLabel->setText(problem);
    PushButton1->setEnabled(problem.isEmpty() && !bytes_.isEmpty());
}

void CustomImportWindow::PushButton1_Action()
{
    const ImportMapping map = mapping();
    std::function<bool(int, int)> progress;
    std::unique_ptr<QProgressDialog> shown;
    if (int(records_.records.size()) > kRecordsWithProgress) {
        shown = std::make_unique<QProgressDialog>(u"Importing transactions..."_s, u"Cancel"_s, 0,
                                                  int(records_.records.size()), this);
        shown->setWindowModality(Qt::WindowModal);
        shown->setMinimumDuration(0);
        progress = [&shown](int done, int total) {
            shown->setMaximum(total);
            shown->setValue(done);
            return !shown->wasCanceled();
        };
    }
    const ImportPlan plan = planImport(bytes_, map, transactions_, progress);
    shown.reset();
    if (plan.cancelled)
        return;
    if (!plan.refusal.isEmpty()) {
        MsgBox(u"Nothing was imported: %1."_s.arg(plan.refusal));
        return;
    }
    bool skipDuplicates = false;
    if (plan.duplicates > 0) {
        MessageDialog question;
        question.Message = plan.duplicates == 1 ? u"One of the transactions is in the ledger already."_s
                                                : u"%1 of the transactions are in the ledger already."_s.arg(
                                                      plan.duplicates);
        question.Explanation = u"They have the account, description, date and amount of a transaction the "
                               "ledger holds."_s;
        question.ActionButton = u"Skip Them"_s;
        question.AlternateActionButton = u"Import All"_s;
        question.CancelButton = u"Cancel"_s;
        const MessageDialog::Button answer = question.ShowModal();
        if (answer == MessageDialog::Button::Cancel)
            return;
        skipDuplicates = answer == MessageDialog::Button::Action;
    }
    commit_(plan.rows, skipDuplicates);
    close();
}
