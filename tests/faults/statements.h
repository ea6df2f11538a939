#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarnwick {

struct ListedStatement {
    std::string name;
    bool repeats = false;  // stands in a loop
};

/// The statements of every routine that may be resumed, in their order.
using StatementList = std::map<std::string, std::vector<ListedStatement>>;
const StatementList& listed_statements();

}  // namespace tarnwick
