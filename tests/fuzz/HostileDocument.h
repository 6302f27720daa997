#pragma once

#include "tests/sdk/support/TemporaryDirectory.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

using Directories = std::vector<std::string>;

/// A reader of CvxC.xml.
struct Reader
{
    const char *name;
    Directories (*read)(const std::string &installRoot);
};

std::ostream &operator<<(std::ostream &stream, const Reader &reader);

/// The launcher and the SDK library.
const std::vector<Reader> &readers();

/// A document with two paths around another one, after declarations.
std::string withPath(const std::string &declarations, const std::string &path);

/// Something hostile in the place of CvxC.xml, in an installation of its own.
class HostileDocument : public testing::Test
{
protected:
    HostileDocument();

    std::filesystem::path file() const { return root.path() / "bin/CvxC.xml"; }
    void write(const std::string &content) const;

    /// Reads within the bounds that a start has to keep, however slow the computer and the build are.
    Directories read(const Reader &reader) const;

    Directories fallback() const { return {(root.path() / "cti").string()}; }

    TemporaryDirectory root;
};
