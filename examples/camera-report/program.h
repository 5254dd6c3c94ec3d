#pragma once

#include "fleet.h"
#include "interfacechange.h"
#include "options.h"
#include "printer.h"
#include "probe.h"

#include <QtCore/QObject>

#include <memory>

namespace client {

/// Does what the options say, in the event loop, and ends it with the exit code.
class Program : public QObject
{
public:
    explicit Program(const Options &options);

    void start();

private:
    void search();
    void take(const FoundCamera &found);
    void endSearch(const SearchResult &result);
    void take(const Report &report);
    void changeInterface();
    void showProgress();
    void endIfDone();
    void complain(const QString &sentence);

    Options m_options;
    Printer m_printer;
    Fleet m_fleet;
    std::unique_ptr<Probe> m_probe; ///< while it searches
    std::unique_ptr<InterfaceChanger> m_changer;
    qsizetype m_found = 0;
    int m_failed = 0; ///< reports that lack something
    int m_exitCode = Complete;
};

} // namespace client
