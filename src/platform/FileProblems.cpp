#include "platform/FileProblems.h"

#include "platform/BlockingServices.h"

#include <QStringList>

namespace {

struct Gathered {
    int depth = 0;
    QStringList messages;
};

Gathered& gathered()
{
    static Gathered state;
    return state;
}

} // namespace

void tellFileProblem(const QString& message)
{
    Gathered& state = gathered();
    if (state.depth == 0)
        MsgBox(message);
    else if (!state.messages.contains(message))
        state.messages << message;
}

FileProblemGathering::FileProblemGathering()
{
    ++gathered().depth;
}

FileProblemGathering::~FileProblemGathering()
{
    Gathered& state = gathered();
    if (--state.depth > 0 || state.messages.isEmpty())
        return;
    const QString message = state.messages.join(u"\n\n");
    state.messages.clear();
    MsgBox(message);
}
