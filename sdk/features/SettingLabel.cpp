#include "sdk/features/SettingLabel.h"

std::string settingLabel(const std::string &name, const std::vector<SelectorSetting> &selectors)
{
    std::string list;
    for (const SelectorSetting &selector : selectors)
        list += (list.empty() ? "" : ", ") + selector.name + '=' + selector.value;
    return list.empty() ? name : name + " [" + list + ']';
}
