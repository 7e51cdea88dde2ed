#include "support/ModelContract.h"

#include <cstring>

namespace {

ModelContract* watching = nullptr;

} // namespace

ModelContract::ModelContract(QAbstractItemModel* model)
    : previous(startWatching(this))
    , tester(model, QAbstractItemModelTester::FailureReportingMode::Warning)
{
}

QtMessageHandler ModelContract::startWatching(ModelContract* contract)
{
    // Before the tester exists: it checks the model as it is made.
    watching = contract;
    return qInstallMessageHandler(&ModelContract::record);
}

ModelContract::~ModelContract()
{
    watching = nullptr;
    qInstallMessageHandler(previous);
}

void ModelContract::record(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // The tester reports in its own logging category, and the model's own index
    // checks in theirs; everything else passes on.
    const bool breach = context.category
        && (std::strcmp(context.category, "qt.modeltest") == 0
            || std::strcmp(context.category, "qt.core.qabstractitemmodel.checkindex") == 0);
    if (watching && breach) {
        watching->found << message;
        return;
    }
    if (watching && watching->previous)
        watching->previous(type, context, message);
}
