#pragma once

#include <optional>
#include <string>
#include <vector>

namespace verandis {

/// A command line taken apart: options may stand anywhere, all else are words in their order.
struct CommandLine {
    std::vector<std::string> words;  // the command and its arguments
    std::string system;              // data root, absolute; empty when not given
    std::string csv;                 // file, absolute; empty when not given
    std::string json;
    std::string pdf;
    int language = 0;      // 0 when not given
    int kind = 0;          // written behind a stored value from 1 on
    bool yes = false;      // answer to questions
    bool differs = false;  // a report ends with what differs
    bool help = false;
    bool version = false;
    std::string complaint;  // what is wrong with it; empty when nothing is
};

/// Only words that begin with "--" are options, so that a value may be negative; "--" alone ends
/// the options.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);

}  // namespace verandis
