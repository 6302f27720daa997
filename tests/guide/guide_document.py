"""The guide as a tree of elements: enough of HTML for one well-formed document."""

import html.parser

VOID = {"area", "base", "br", "col", "embed", "hr", "img", "input", "link", "meta", "source", "track", "wbr"}


class Element:
    def __init__(self, tag, attributes, parent=None):
        self.tag = tag
        self.attributes = dict(attributes)
        self.parent = parent
        self.children = []  # Elements and texts.

    def all(self, *tags):
        """The elements of these tags below this one, or all of them, in the document's order."""
        for child in self.children:
            if isinstance(child, Element):
                if not tags or child.tag in tags:
                    yield child
                yield from child.all(*tags)

    def first(self, tag):
        return next(self.all(tag), None)

    def with_class(self, name):
        return [element for element in self.all() if name in element.attributes.get("class", "").split()]

    def text(self, place=None):
        """The text, in which a word other than None stands for every <var>."""
        if self.tag == "var" and place is not None:
            return place
        if self.tag == "br":
            return "\n"
        return "".join(child.text(place) if isinstance(child, Element) else child for child in self.children)


class Parser(html.parser.HTMLParser):
    """Builds the tree; an element that is closed in the wrong place, or never, is an error."""

    def __init__(self):
        super().__init__(convert_charrefs=True)
        self.root = self.current = Element("document", {})

    def handle_starttag(self, tag, attrs):
        element = Element(tag, attrs, self.current)
        self.current.children.append(element)
        if tag not in VOID:
            self.current = element

    def handle_startendtag(self, tag, attrs):
        self.current.children.append(Element(tag, attrs, self.current))

    def handle_endtag(self, tag):
        assert tag == self.current.tag, f"line {self.getpos()[0]}: </{tag}> closes <{self.current.tag}>"
        self.current = self.current.parent

    def handle_data(self, data):
        self.current.children.append(data)


def read_guide(path):
    parser = Parser()
    parser.feed(path.read_text(encoding="utf-8"))
    parser.close()
    assert parser.current is parser.root, f"<{parser.current.tag}> is never closed"
    return parser.root
