#include "outlines.h"

#include "tree.h"

#include <QtCore/QRect>

namespace inspect {

Outline outline(const QRect &rectangle)
{
    const auto lengthOf = [](int first, int last) {
        return static_cast<int>(static_cast<unsigned int>(last) - static_cast<unsigned int>(first) + 1U);
    };
    return Outline::Fields{
        {"x", rectangle.left()},
        {"y", rectangle.top()},
        {"width", lengthOf(rectangle.left(), rectangle.right())},
        {"height", lengthOf(rectangle.top(), rectangle.bottom())},
    };
}

Outline outline(const QSize &size)
{
    return Outline::Fields{{"width", size.width()}, {"height", size.height()}};
}

Outline outline(const QMultiMap<QString, QString> &scopes)
{
    Outline::Fields fields;
    for (const char *key : {"type", "name", "location", "hardware"})
        fields.emplace_back(key, outline(scopes.values(QLatin1String(key))));
    return fields;
}

Outline outline(const vorn::OnvifProfile &profile)
{
    Outline::Fields fields = fieldsOf(profile);
    fields.emplace_back("saved", profile.isSaved());
    return fields;
}

Outline outline(const vorn::OnvifFault &fault)
{
    Outline::Fields fields = fieldsOf(fault);
    fields.emplace_back("errorId", fault.errorId());
    fields.emplace_back("sentence", fault.toString());
    // The device's own words. A fault that stands alone has none: whoever made it is no device.
    vorn::XmlResponse response = fault.response; // queries are not const
    const QString reason = response.getText(QStringLiteral("/Envelope/Body/Fault/Reason/Text"));
    if (!reason.isNull())
        fields.emplace_back("reason", reason);
    const vorn::XmlResponseNode detail = response.get(QStringLiteral("/Envelope/Body/Fault/Detail"));
    if (detail.valid)
        fields.emplace_back("detail", treeOf(detail));
    return fields;
}

} // namespace inspect
