// Compares two definitions member by member, links included.
#pragma once

#include <string>
#include <vector>

#include "definition/ADXDefinition.h"

namespace corvex {

// Every member that a file can hold, one line each; a link stands as the place of its target in the list.
std::vector<std::string> DescribeDefinition(const ADXDefinition& definition);

// All values of one member, joined by ", " where there are several. `member` is the object's place in the list, or
// "header", and the name that DescribeDefinition gives it: "0 units", "2 row color", "header baud".
std::string DescribeMember(const ADXDefinition& definition, const std::string& member);

// The first line in which the two differ, as "mine | theirs"; empty when they are equal.
std::string FirstDifference(const ADXDefinition& mine, const ADXDefinition& theirs);

}  // namespace corvex
