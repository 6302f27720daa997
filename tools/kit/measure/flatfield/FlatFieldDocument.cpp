#include "tools/kit/measure/flatfield/FlatFieldDocument.h"

#include "sdk/imagefile/FlatFieldFile.h"
#include "sdk/imagefile/Sidecar.h"

nlohmann::ordered_json flatFieldDocument(const FlatFieldResult &result, const CameraRecord &camera)
{
    nlohmann::ordered_json document{
        {"format", "corvix-x-flat-field-report"}, {"version", 1}, {"created", utcNow()}};
    document.update(cameraJson(camera));
    document["result"] = toJson(result);
    return document;
}

std::string writeFlatFieldResult(
    const std::string &path, const FlatFieldResult &result, const CameraRecord &camera)
{
    return writeFlatField(path, result.built.field, camera, {{"result", toJson(result)}});
}
