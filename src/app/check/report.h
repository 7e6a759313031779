#pragma once

#include <QStringList>
#include <QTextStream>
#include <optional>

#include "app_check/findings.h"

namespace zelvor {

// How findings are printed: for people, as JSON of our own, and as SARIF 2.1.0 for tools that show findings of others.
enum class ReportFormat { Text, Json, Sarif };

// nullopt for a name that is none of "text", "json", "sarif".
std::optional<ReportFormat> reportFormat(const QString& name);

// Prints all findings; returns the number of errors among them.
int printReport(Findings& findings, ReportFormat format, QTextStream& out);

}  // namespace zelvor
