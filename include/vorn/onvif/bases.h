#pragma once

/// \file
/// The two bases of the records.

#include <vorn/onvif/export.h>
#include <vorn/util/xmlresponse.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace vorn {

/// Base of the data records: knows whether the record is null, and what part of a request it makes, if it makes one.
struct VORNSDK_ONVIF_EXPORT OnvifDataStructure
{
    /// A null record.
    OnvifDataStructure();

    /// A record that is null if, and only if, \a null is true.
    explicit OnvifDataStructure(bool null);

    OnvifDataStructure(const OnvifDataStructure &other);
    OnvifDataStructure &operator=(OnvifDataStructure other);
    virtual ~OnvifDataStructure();

    /// The record as the XML fragment of a request. A null string for records that have no such form, which are all
    /// that do not say otherwise.
    virtual QString toString() const;

    /// True if the record was default-constructed, or its element was missing in the reply. Its fields play no part.
    bool isNull() const;

protected:
    /// Makes the record null or not, for derived records.
    void setNull(bool null);

private:
    bool m_null = true;
};

/// Base of the records that are read from the bytes of a reply.
///
/// Reading never fails visibly: what the reply does not hold stays at its default. Whether the reply was a good one is
/// for OnvifFault to say.
struct VORNSDK_ONVIF_EXPORT OnvifResponseStructure
{
    /// The parsed reply, for queries of the caller's own.
    XmlResponse response;

    /// The whole reply as text, also if it could not be parsed. Null by default.
    QString xml;

    /// An empty response: every path is missing.
    OnvifResponseStructure();

    /// Parses \a bytes; paths on `response` start at \a root.
    OnvifResponseStructure(const QByteArray &bytes, const QString &root);

    OnvifResponseStructure(const OnvifResponseStructure &other);
    OnvifResponseStructure(OnvifResponseStructure &&other) noexcept;
    OnvifResponseStructure &operator=(const OnvifResponseStructure &other);
    OnvifResponseStructure &operator=(OnvifResponseStructure &&other) noexcept;
    ~OnvifResponseStructure();
};

} // namespace vorn
