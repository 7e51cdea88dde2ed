#pragma once

#include <QAbstractItemModelTester>
#include <QStringList>

#include <string>

class QAbstractItemModel;

// Watches a model with Qt's model tester for as long as it lives and gathers
// what the tester, or the model's own index checks, find wrong instead of
// aborting, so a test can show every breach of the model contract. Attach one
// to every grid model under test.
class ModelContract {
public:
    explicit ModelContract(QAbstractItemModel* model);
    ~ModelContract();
    ModelContract(const ModelContract&) = delete;
    ModelContract& operator=(const ModelContract&) = delete;

    // Breaches found so far, one a line; empty while the model keeps the contract.
    std::string breaches() const { return found.join(u'\n').toStdString(); }

private:
    static QtMessageHandler startWatching(ModelContract* contract);
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QStringList found;
    QtMessageHandler previous;
    QAbstractItemModelTester tester;
};
