#pragma once

// What the writer and the reader of the exchange format agree on.
namespace SettingsExchange {

inline constexpr const char SEPARATOR[] = "[sep]";
inline constexpr const char NEW_LINE[] = "[new_line]";
inline constexpr const char MINUS[] = "[minus]";
inline constexpr const char FILE_FILTER[] = "Ovra Settings File (*.ovra_settings *.ovra)";
// The address is a placeholder that nobody fills in.
inline constexpr const char HEADER[] = "#Created by YOUR NAME <your.name@example.org>";

} // namespace SettingsExchange
