#pragma once

#include <vorn/util/xmlresponse.h>

#include <optional>

namespace vorn {

/// What `get(path).element.text()` gives; nothing if there is no such element. An element that has text is there, and
/// asking for the text alone, which is the same text, costs much less than asking for the element.
inline std::optional<QString> foundText(XmlResponse &response, const QString &path)
{
    QString text = response.getText(path);
    if (text.isEmpty() && !response.get(path).valid)
        return std::nullopt;
    return text;
}

} // namespace vorn
