#pragma once

#include <QtCore/QString>

namespace example {

/// The name of the file that holds the reply to the request \a action. A reply that only some requests with this action
/// get has a \a variant in its name: the token that they name, for example.
QString replyFileName(const QString &action, const QString &variant = {});

} // namespace example
