// StrTable: the user-interface texts of the client under fixed numeric ids,
// each with a lower-case key and a default English text that doubles as the
// source text of the translation catalogues (context "global").
#pragma once

#include <QString>

namespace StrTable {

// Number of rows; valid ids are 0 to StrCount - 1.
constexpr int StrCount = 563;

// The rows the launcher shows.
constexpr int kStrPreparing = 461; // "Calderix Drive is initializing..."
constexpr int kStrAppName = 493;   // "Calderix Drive"
constexpr int kStrReady = 510;     // "Calderix Drive is ready."

// Fills the table. Call once, before any thread asks for a text.
void InitStrTable();

// The text of row id in the language of the installed translators, English
// when none translates it; "\n" and "\t" escapes become line feed and TAB.
// id must lie in 0 .. StrCount - 1.
QString LoadStr(int id);

// The id whose key equals key without regard to ASCII case, -1 when none does.
int LookupStrID(const QString& key);

} // namespace StrTable
