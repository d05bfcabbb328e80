#pragma once

#include <string>
#include <vector>

#include "app/session.h"
#include "case/shapes.h"
#include "support/session_test.h"
#include "text/separators.h"

namespace verandis::testing_support {

/// An open slot whose every element has a type, and what a dialog changed in its file.
class ConstructionSlot : public SmallRootTest {
protected:
    /// Opens slot 1 of a shape: windows Clear1, walls WallA1, a share of 20, absorptances of 60.
    /// Rows in `first` come first and so win.
    void Open(int shape, const std::string& first = "") {
        std::string rows = first;
        for (const Series series : {Series::Envelope, Series::Partition, Series::Glazing}) {
            for (const auto id : ElementsOf(shape, series)) {
                const std::string element(id);
                if (series != Series::Glazing) rows += element + "_WALLTYPE\tWallA1\n";
                if (series != Series::Envelope) rows += element + "_GLAZEDID\tClear1\n";
                if (series != Series::Partition) continue;
                rows += element + "_PCNTW\t 20\n" + element + "_ABSX1\t 60\n";
            }
        }
        slot_ = {shape, 1};
        MakeSlot(slot_, rows + "ABSXS1_ABSX1\t 60\n");
        session.ActiveShape = shape;
        session.ActiveCaseNo = 1;
        before_ = Lines();
    }

    /// The lines that have changed or are new, as "XU204-W_GLAZEDID=Clear2", parted by a blank.
    std::string Changed() const {
        std::string changed;
        const auto after = Lines();
        for (std::size_t at = 0; at < after.size(); ++at) {
            if (at < before_.size() && before_[at] == after[at]) continue;
            std::string line = after[at];
            if (const auto tab = line.find('\t'); tab != std::string::npos) line[tab] = '=';
            changed += (changed.empty() ? "" : " ") + line;
        }
        return changed;
    }

    std::string File() const { return SlotFile(slot_, "SimpPropertiesOfCase.Dat"); }

private:
    std::vector<std::string> Lines() const {
        const std::string bytes = Bytes(File());
        std::vector<std::string> lines;
        for (std::string_view rest = bytes; !rest.empty();) lines.emplace_back(TakeLine(rest));
        return lines;
    }

    Slot slot_;
    std::vector<std::string> before_;
};

}  // namespace verandis::testing_support
