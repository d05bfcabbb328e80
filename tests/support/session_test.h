#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "case/shapes.h"
#include "platform/progress.h"
#include "support/recording_prompts.h"

namespace verandis::testing_support {

/// The bytes of a file, read without the system's own file module; fails the test when missing.
std::string Bytes(const std::string& path);

/// Writes bytes, making the folders above, without the system's own file module.
void PutBytes(const std::string& path, const std::string& bytes);

bool OnDisk(const std::string& path);

/// Every file below a folder, as relative path and bytes, in order.
std::vector<std::pair<std::string, std::string>> TreeOf(const std::string& folder);

/// A fresh session with recorded messages, a settings folder and a short temporary folder of its
/// own.
class SessionTest : public testing::Test {
protected:
    SessionTest();
    ~SessionTest() override;

    /// Absolute path below the test's folder.
    std::string Path(const std::string& relative) const { return folder_ + "/" + relative; }

    RecordingPrompts prompts;
    Progress progress;

private:
    std::string folder_;
};

/// A data root made of a few hand-written lines: one project "verandis" that is open, with small
/// libraries, a climate file and slot U1. Nothing of the delivered data.
class SmallRootTest : public SessionTest {
protected:
    SmallRootTest();

    std::string root;     // the data root
    std::string project;  // its project of the slots

    /// Adds a slot to the case list, with this property file, and opens it. Lines are ended by LF
    /// here and CR LF on disk.
    void MakeSlot(const Slot& slot, const std::string& properties);

    /// Path of a file of a slot.
    std::string SlotFile(const Slot& slot, const std::string& name) const;
};

/// A data root made from the delivered data, not started yet; settings point at it.
class DeliveredRootTest : public SessionTest {
protected:
    DeliveredRootTest();

    std::string root;
    std::string project;
};

/// Text with CR LF in place of LF.
std::string Dos(const std::string& text);

}  // namespace verandis::testing_support
