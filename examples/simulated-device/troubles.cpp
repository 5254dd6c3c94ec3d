#include "troubles.h"

namespace simulator {
namespace {

const std::pair<const char *, Trouble> names[] = {
    {"silent", Trouble::Silent},
    {"slow", Trouble::Slow},
    {"dropped", Trouble::Dropped},
    {"truncated", Trouble::Truncated},
    {"endless", Trouble::Endless},
    {"endless-head", Trouble::EndlessHead},
    {"garbage", Trouble::Garbage},
    {"empty", Trouble::Empty},
    {"json", Trouble::Json},
    {"redirect", Trouble::Redirect},
    {"not-found", Trouble::NotFound},
    {"unavailable", Trouble::Unavailable},
    {"not-supported", Trouble::NotSupported},
};

} // namespace

QStringList troubleNames()
{
    QStringList result;
    for (const auto &[name, trouble] : names)
        result += name;
    return result;
}

Trouble troubleByName(const QString &name)
{
    for (const auto &[candidate, trouble] : names) {
        if (name == candidate)
            return trouble;
    }
    return Trouble::None;
}

Trouble troubleFor(const Troubles &troubles, const QString &action)
{
    return troubles.value(action, troubles.value({}, Trouble::None));
}

} // namespace simulator
