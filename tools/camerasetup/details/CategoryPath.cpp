#include "tools/camerasetup/details/CategoryPath.h"

#include "tools/kit/camera/FeatureClient.h"

#include <QStringList>

using CvxCPP::NodeInfo;

namespace {

const std::string rootName = "Root"; ///< The name that the naming convention gives the outermost category.

const NodeInfo *outerOf(const FeatureClient &client, const NodeInfo &info)
{
    return client.info(QString::fromStdString(info.category));
}

} // namespace

QString categoryPath(const FeatureClient &client, const NodeInfo &info)
{
    QStringList names;
    const NodeInfo *category = outerOf(client, info);
    while (category && names.size() < client.nodes().size()) {
        const NodeInfo *const outer = outerOf(client, *category);
        if (outer || category->name != rootName)
            names.prepend(QString::fromStdString(category->displayName));
        category = outer;
    }
    return names.join(QStringLiteral(" \u203a "));
}
