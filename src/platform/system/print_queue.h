#pragma once

#include <QString>

namespace torvik {

/// Whether a printer of the system takes jobs at the moment. Qt does not tell, and a job that is refused is
/// lost without a word. True where the print system cannot be asked or does not know the printer. Answers
/// within seconds, also when the print system does not.
bool TakesJobs(const QString& printer);

} // namespace torvik
