#include "tests/fuzz/ExpatEvents.h"

#include "tests/fuzz/FuzzTarget.h"

#define XML_DTD // As in CtiPathsDocument.cpp.
#include <expat.h>

namespace {

enum Event : std::size_t
{
    Begin,
    Start,
    End,
    Text,
    Comment,
    Instruction,
    SectionStart,
    SectionEnd,
    Entity,
    Doctype,
    Skipped
};

void note(void *before, Event event)
{
    auto &previous = *static_cast<std::size_t *>(before);
    noteFeature(4096 + previous * 16 + event);
    previous = event;
}

void setHandlers(XML_Parser parser)
{
    XML_SetElementHandler(
        parser, [](void *data, const char *, const char **) { note(data, Start); },
        [](void *data, const char *) { note(data, End); });
    XML_SetCharacterDataHandler(parser, [](void *data, const char *, int) { note(data, Text); });
    XML_SetCommentHandler(parser, [](void *data, const char *) { note(data, Comment); });
    XML_SetProcessingInstructionHandler(
        parser, [](void *data, const char *, const char *) { note(data, Instruction); });
    XML_SetCdataSectionHandler(
        parser, [](void *data) { note(data, SectionStart); }, [](void *data) { note(data, SectionEnd); });
    XML_SetEntityDeclHandler(parser,
        [](void *data, const char *, int, const char *, int, const char *, const char *, const char *,
            const char *) { note(data, Entity); });
    XML_SetStartDoctypeDeclHandler(
        parser, [](void *data, const char *, const char *, const char *, int) { note(data, Doctype); });
    XML_SetSkippedEntityHandler(parser, [](void *data, const char *, int) { note(data, Skipped); });
}

} // namespace

bool noteExpatEvents(const std::string &document)
{
    std::size_t before = Begin;
    const XML_Parser parser = XML_ParserCreateNS(nullptr, '\x1F');
    require(parser != nullptr, "there is a parser");
    XML_SetUserData(parser, &before);
    XML_SetParamEntityParsing(parser, XML_PARAM_ENTITY_PARSING_ALWAYS);
    // More of the same tells nothing new.
    XML_SetBillionLaughsAttackProtectionActivationThreshold(parser, 1U << 16);
    setHandlers(parser);
    const bool isRead
        = XML_Parse(parser, document.data(), static_cast<int>(document.size()), XML_TRUE) == XML_STATUS_OK;
    noteFeature(6144 + before * 64 + XML_GetErrorCode(parser));
    XML_ParserFree(parser);
    return isRead;
}
