#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace test {

/// What headers declare.
struct Declarations
{
    QMap<QString, QStringList> fields; ///< For each struct that has any, by its name: its public fields.
    QMap<QString, QStringList>
        enumerators; ///< For each enumeration, by its name: its enumerators, each with its value.
};

/// Reads \a header, as far as headers of this project use the language: enumerators have a value, and a field is no
/// pointer to a function. Names of structs and enumerations are qualified, but without namespaces.
Declarations declarationsIn(const QString &header);

/// What the headers in \a folder declare.
Declarations declarationsBelow(const QString &folder);

} // namespace test
