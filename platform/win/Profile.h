#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace win {

// Profile (.ini) files with the semantics of GetPrivateProfileStringA and
// WritePrivateProfileStringA, on every platform: "[section]" lines and "key=value" lines, names
// without regard to case, blanks around names and values ignored, a value in matching quotes
// read without them, lines starting with ";" kept as comments and never taken as keys. Files are
// windows-1252 text; lines we add end in CR LF, and every other line, comment and blank of the
// file stays as it was. A path is used as given (the system's calls would take a bare name from
// the Windows folder).

// GetPrivateProfileStringA. Returns what the call leaves in a buffer of `size` characters:
// - no section: the names of all sections, each followed by a NUL, and one more NUL at the end;
// - a section and no key: the names of its keys in the same form;
// - both: the value (empty for "key="), or `defaultValue` with its trailing blanks removed when
//   the file, the section or the key is missing, or the key name is empty.
// The text ends in the NUL that the call writes. A list that does not fit is cut, its last name
// truncated, and ends in two NULs; a value that does not fit is cut to size - 1 characters. `count`
// receives the characters copied, not counting the final NUL (size - 2 for a list that did not
// fit).
QString readProfileString(const std::optional<QString>& section, const std::optional<QString>& key,
                          const QString& defaultValue, std::uint32_t size, const QString& path,
                          std::uint32_t* count = nullptr);

// WritePrivateProfileStringA: sets the key's value (the key is added at the end of its section,
// the section at the end of the file, the file made on the first write); no value deletes the
// key, no key deletes the section with its lines. True when the file was written; false when it
// could not be (a missing folder, no rights), which leaves the file as it was. Deleting from a
// file that does not exist succeeds without making it.
bool writeProfileString(const std::optional<QString>& section, const std::optional<QString>& key,
                        const std::optional<QString>& value, const QString& path);

} // namespace win
