#pragma once

#include <string>
#include <vector>

namespace verandis::bench {

/// While one lives, the path of every file that the program opens for reading only is kept, in
/// order. The link step leads the calls of `open` here, so that the product carries no hook.
class RecordedOpens {
public:
    RecordedOpens();
    ~RecordedOpens();
    RecordedOpens(const RecordedOpens&) = delete;
    RecordedOpens& operator=(const RecordedOpens&) = delete;

    /// The paths as they were given to the system; one opened twice stands there twice.
    const std::vector<std::string>& paths() const;
};

}  // namespace verandis::bench
