#pragma once

#include "outline.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <optional>

namespace inspect {

/// What the library makes of one reply.
struct Reply
{
    /// What was recognised: the name of the first element in the Body, or a description.
    QString kind;

    /// The record, or the codes of the fault; nothing if the library has none for this kind of reply.
    std::optional<Outline> record;

    /// A sentence for the reader, where there is no record or the record needs one.
    QString remark;

    bool isFault = false;

    /// Gives the record, or each record of the list, as a part of a request that sets it. Empty if the library has no
    /// such form.
    std::function<QStringList()> requests = {};

    /// All that is in the reply, by the names of its elements, where there is no record.
    std::optional<Outline> tree = {};
};

/// Reads the reply \a bytes to the request \a action, which must outlive the call only.
Reply read(const QByteArray &bytes, const char *action);

} // namespace inspect
