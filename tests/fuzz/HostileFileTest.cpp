// What CvxC.xml refers to, and what is no document at all, for both of its readers.

#include "tests/fuzz/HostileDocument.h"
#include "tests/fuzz/Visits.h"

#include <fstream>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;

class ExternalReference : public HostileDocument, public testing::WithParamInterface<Reader>
{
protected:
    /// Nothing of the file or the server that "@" stands for is asked for, and both paths are found.
    void expectNotFetched(const std::string &content)
    {
        const fs::path secret = root.path() / "secret";
        std::ofstream(secret) << "<!ENTITY e '/secret'>";
        const FileVisits file(secret);
        const ServerVisits server;
        for (const std::string &address : {"file://" + secret.string(), secret.string(), server.address()}) {
            std::string document = content;
            for (auto at = document.find('@'); at != std::string::npos; at = document.find('@'))
                document.replace(at, 1, address);
            write(document);
            EXPECT_EQ(read(GetParam()), (Directories{"/a", "/b"})) << document;
        }
        EXPECT_EQ(file.count(), 0);
        EXPECT_EQ(server.count(), 0);
        std::ifstream(secret).get();
        server.visit();
        EXPECT_EQ(file.count(), 1) << "would be noticed";
        EXPECT_EQ(server.count(), 1) << "would be noticed";
    }
};

TEST_P(ExternalReference, IsNotFetchedForAnEntity)
{
    expectNotFetched(withPath("<!ENTITY e SYSTEM '@'>", "&e;"));
    expectNotFetched(withPath("<!ENTITY e PUBLIC '-//x' '@'>", "&e;"));
}

TEST_P(ExternalReference, IsNotFetchedForDeclarations)
{
    expectNotFetched(withPath("<!ENTITY % p SYSTEM '@'>%p;", "&e;"));
}

TEST_P(ExternalReference, IsNotFetchedForADocumentType)
{
    const std::string rest = "<c><CtiPaths><Path>/a</Path><Path>&e;</Path><Path>/b</Path></CtiPaths></c>";
    expectNotFetched("<!DOCTYPE c SYSTEM '@'>" + rest);
    expectNotFetched("<!DOCTYPE c PUBLIC '-//x' '@'>" + rest);
}

TEST_P(ExternalReference, IsNotFetchedForASchemaOrAStyleSheet)
{
    expectNotFetched("<?xml-stylesheet href='@'?><c xmlns:i='http://www.w3.org/2001/XMLSchema-instance' "
                     "xmlns:x='http://www.w3.org/2001/XInclude' i:noNamespaceSchemaLocation='@'>"
                     "<x:include href='@'/><CtiPaths><Path>/a</Path><Path>/b</Path></CtiPaths></c>");
}

INSTANTIATE_TEST_SUITE_P(Readers, ExternalReference, testing::ValuesIn(readers()),
    [](const auto &test) { return test.param.name; });

// What is no regular file.

struct OtherFile
{
    const char *name;
    void (*make)(const fs::path &place);
};

std::ostream &operator<<(std::ostream &stream, const OtherFile &kind)
{
    return stream << kind.name;
}

class NoRegularFile : public HostileDocument,
                      public testing::WithParamInterface<std::tuple<Reader, OtherFile>>
{ };

TEST_P(NoRegularFile, MeansTheDirectoryCti)
{
    const auto &[reader, kind] = GetParam();
    kind.make(file());
    ASSERT_TRUE(fs::symlink_status(file()).type() != fs::file_type::not_found);
    EXPECT_EQ(read(reader), fallback());
}

namespace {

void makeSocket(const fs::path &place)
{
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(place.native().size(), sizeof address.sun_path);
    place.native().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    close(socket);
}

const OtherFile OtherFiles[]
    = {{"Fifo", [](const fs::path &place) { ASSERT_EQ(mkfifo(place.c_str(), 0600), 0); }},
        {"Directory", [](const fs::path &place) { fs::create_directory(place); }}, {"Socket", makeSocket},
        {"EndlessDevice", [](const fs::path &place) { fs::create_symlink("/dev/zero", place); }},
        {"EmptyDevice", [](const fs::path &place) { fs::create_symlink("/dev/null", place); }},
        {"Terminal", [](const fs::path &place) { fs::create_symlink("/dev/ptmx", place); }},
        {"LinkToAFifo",
            [](const fs::path &place) {
                const fs::path fifo = place.parent_path() / "fifo";
                ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
                fs::create_symlink(fifo, place);
            }},
        {"LinkToItself", [](const fs::path &place) { fs::create_symlink(place, place); }},
        {"DanglingLink", [](const fs::path &place) { fs::create_symlink("nowhere", place); }}};

} // namespace

INSTANTIATE_TEST_SUITE_P(Files, NoRegularFile,
    testing::Combine(testing::ValuesIn(readers()), testing::ValuesIn(OtherFiles)), [](const auto &test) {
        return std::string(std::get<0>(test.param).name) + std::get<1>(test.param).name;
    });
