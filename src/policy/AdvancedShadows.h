#pragma once

#include <QString>

#include <vector>

#include "settings/SettingsHost.h"

// The advanced view keeps what the user set there in keys of its own, with
// the prefix Advanced, because a type overwrites the keys in force. Entering
// the view copies the kept values back.
namespace AdvancedShadows {

struct Pair
{
    const char* source; // the Advanced key
    const char* target; // the key in force
};

// The keys that entering the advanced view copies, in the order it copies
// them.
const std::vector<Pair>& view_pairs();

// Copies every source of view_pairs() to its target, in order.
void copy_into_view(SettingsMap& settings);

// The shadow of a key for one monitor: "Advanced", the key, then the monitor
// number unless it is 0.
QString shadow_key(const char* key, int monitor);

} // namespace AdvancedShadows
