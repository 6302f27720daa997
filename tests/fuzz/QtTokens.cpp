#include "tests/fuzz/QtTokens.h"

#include "tests/fuzz/FuzzTarget.h"

#include <QHash>
#include <QXmlStreamReader>

bool noteQtTokens(const std::string &document)
{
    QXmlStreamReader xml(QByteArray(document.data(), int(document.size())));
    std::size_t before = 0;
    while (!xml.atEnd()) {
        const std::size_t token = xml.readNext();
        noteFeature(before * 16 + token);
        before = token;
    }
    // The reasons are told by their words; those that quote the document are told apart as well.
    noteFeature(1024 + before * 16 + xml.error());
    noteFeature(2048 + qHash(xml.errorString().left(12), 0) % 1024);
    return !xml.hasError();
}
