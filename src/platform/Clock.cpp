#include "platform/Clock.h"

namespace {

std::function<QDateTime()>& source()
{
    static std::function<QDateTime()> current;
    return current;
}

} // namespace

namespace Clock {

QDateTime now()
{
    return source() ? source()() : QDateTime::currentDateTime();
}

QDate today()
{
    return now().date();
}

std::function<QDateTime()> install(std::function<QDateTime()> newSource)
{
    return std::exchange(source(), std::move(newSource));
}

} // namespace Clock
