"""What the window has to recommend for a camera, worked out from the documents that are compiled into the program."""

import json
import platform


class Recommendation:
    def __init__(self, documents):
        self.groups = {group["type"]: group
                       for group in self.read(documents, "launcher_config")["hardwareGroups"]}
        self.references = sorted(self.read(documents, "cameras_reference")["cameras"],
                                 key=lambda row: len(row["model"]), reverse=True)
        self.compatible = {model.lower(): entry["tools"] for model, entry
                           in self.read(documents, "halvex_tool_compatibility")["cameras"].items()}
        machine = platform.machine()
        self.platform = "linux_" + {"aarch64": "arm64"}.get(machine, machine)

    @staticmethod
    def read(documents, name):
        with open(f"{documents}/{name}.json", encoding="utf-8") as file:
            return json.load(file)

    def models(self):
        """Model names that the documents know, in a settled order: first those that have a picture."""
        return sorted(row["model"] for row in self.references) + sorted(self.compatible)

    def group(self, vendor, model):
        vendor, model = vendor.lower(), model.lower()
        if "orvelle" in vendor and "simulator" in model:
            return self.groups["simulator"]
        for maker, kind in (("kordane", "highres"), ("lintaro", "linescan")):
            if maker in vendor:
                return self.groups[kind]
        for row in self.references:
            if row["model"].lower() in model:
                return self.groups[row["type"]]
        return self.groups["areascan" if "orvelle" in vendor else "other"]

    def hint(self, vendor, model):
        return f"Recommended for {self.group(vendor, model)['name']}. Non-recommended tools are disabled."

    def tools(self, vendor, model):
        """The tools of the tiles that have to be enabled, by name. No tool for Linux asks for a transport."""
        group = self.group(vendor, model)
        return {tool["name"]: tool for tool in group["tools"]
                if self.platform in tool.get("platforms", [self.platform])
                and (group["type"] != "highres"
                     or tool["id"] in self.compatible.get(model.lower(), [tool["id"]]))}
