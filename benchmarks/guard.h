#pragma once

#include <QtCore/QString>

#include <iosfwd>
#include <map>
#include <string>

namespace bench {

/// The ratios of instructions that are committed: a name and a number on each line, with a tab between.
std::map<std::string, double> readRatios(const QString &path);
void writeRatios(const QString &path, const std::map<std::string, double> &ratios);

/// Compares \a ratios with the \a committed ones, and prints each that has grown by more than a tenth, that is new or
/// that is missing. False if there is one.
bool checkRatios(std::ostream &output, const std::map<std::string, double> &ratios,
                 const std::map<std::string, double> &committed);

} // namespace bench
