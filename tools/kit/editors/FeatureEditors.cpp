#include "tools/kit/editors/FeatureEditors.h"

#include "tools/kit/editors/BooleanEditor.h"
#include "tools/kit/editors/CommandButton.h"
#include "tools/kit/editors/EnumerationEditor.h"
#include "tools/kit/editors/FloatEditor.h"
#include "tools/kit/editors/IntegerEditor.h"
#include "tools/kit/editors/RegisterEditor.h"
#include "tools/kit/editors/TextEditor.h"

using CvxCPP::NodeType;

FeatureEditor *createFeatureEditor(const CvxCPP::NodeInfo &info, FeatureClient &client, QWidget *parent)
{
    switch (info.type) {
    case NodeType::Integer:
        return new IntegerEditor(info, client, parent);
    case NodeType::Float:
        return new FloatEditor(info, client, parent);
    case NodeType::Boolean:
        return new BooleanEditor(info, client, parent);
    case NodeType::Enumeration:
        return new EnumerationEditor(info, client, parent);
    case NodeType::String:
        return new TextEditor(info, client, parent);
    case NodeType::Command:
        return new CommandButton(info, client, parent);
    case NodeType::Register:
        return new RegisterEditor(info, client, parent);
    case NodeType::Category:
        return nullptr;
    }
    return nullptr;
}
