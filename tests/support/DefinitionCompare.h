// Compares two definitions member by member, links included.
#pragma once

#include <string>
#include <vector>

#include "definition/ADXDefinition.h"

namespace corvex {

// Every member that a file can hold, one line each; a link stands as the place of its target in the list.
std::vector<std::string> DescribeDefinition(const ADXDefinition& definition);

// The first line in which the two differ, as "mine | theirs"; empty when they are equal.
std::string FirstDifference(const ADXDefinition& mine, const ADXDefinition& theirs);

}  // namespace corvex
