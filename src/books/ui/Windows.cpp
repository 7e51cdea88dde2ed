#include "books/ui/Windows.h"

#include <QEvent>

namespace {

class CloseWatcher : public QObject {
public:
    CloseWatcher(QWidget* window, std::function<void()> forget)
        : QObject(window)
        , forget_(std::move(forget))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Close && forget_)
            std::exchange(forget_, nullptr)();
        return false;
    }

private:
    std::function<void()> forget_;
};

} // namespace

void forgetOnClose(QWidget* window, std::function<void()> forget)
{
    new CloseWatcher(window, std::move(forget));
}
