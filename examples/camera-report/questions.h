#pragma once

#include "answer.h"
#include "report.h"

#include <QtCore/QString>

#include <deque>
#include <functional>

namespace client {

/// What a device is asked, and what is done with that.
struct Question
{
    using Questions = std::deque<Question>;

    Request request;

    /// Puts \a answer, good or bad, into the report. Gives what is to be asked next, before all else.
    std::function<Questions(const Answer &answer, const QString &complaint)> take;
};

using Questions = std::deque<Question>;

/// What a device is asked first, for \a report, which has to live as long.
Questions questionsFor(Report &report);

/// Says \a why in each section of \a report that nothing is in.
void leaveOpen(Report &report, const QString &why);

} // namespace client
