"""What the program can say, read from its sources. Places that are filled in at run time are "%"."""

import pathlib
import re
import xml.etree.ElementTree

TOKEN = re.compile(r'''"(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)+'|[A-Za-z_]\w*|\d[\w.']*|::|->|\S''')
COMMENT_OR_LITERAL = re.compile(r'''//[^\n]*|/\*.*?\*/|"(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)+\'''', re.S)
CLOSER = {"(": ")", "[": "]", "{": "}"}
LOG_CALL = re.compile(r"q(?:Debug|Info|Warning|Critical|Fatal)")

# Folders whose texts reach standard error, either directly or as the reason in a line about a producer.
SDK_FOLDERS = ("sdk/cvxcpp", "sdk/producerhost", "sdk/simulator", "sdk/aravis", "sdk/producer")

# Texts of the SDK that are names or data and never a message.
NO_MESSAGES = {
    "Camera Simulator", "Corvix Camera Simulator", "USB host", "Universal GigE Vision",
    "Universal USB3 Vision", "Universal GigE Vision producer", "Universal USB3 Vision producer",
    "Network card % (%)", "Addresses outside the network cards' networks", " \\t\\n\\v\\f\\r",
}


def normalised(text):
    """A text as it is compared: one blank between words, "%" for every place that is filled in."""
    return re.sub(r"\s+", " ", re.sub(r"%(?:\d+|s|d|u|zu)", "%", text)).strip()


def without_comments(source):
    source = COMMENT_OR_LITERAL.sub(lambda match: " " if match[0].startswith("/") else match[0], source)
    return re.sub(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", "", source, flags=re.M)


def unquoted(literal):
    return literal[1:-1].replace(r"\"", '"').replace(r"\'", "'").replace(r"\n", "\n")


class Source:
    """The tokens of one C++ file, and the texts that its string literals are put together to."""

    def __init__(self, path):
        self.path = path
        # std::string("text") is the text.
        code = re.sub(r'std::string\(("(?:[^"\\\n]|\\.)*")\)', r"\1", without_comments(path.read_text(encoding="utf-8")))
        self.tokens = TOKEN.findall(code)

    def closing(self, index):
        """The index after the bracket that closes the one at index."""
        depth = 0
        for i in range(index, len(self.tokens)):
            depth += (self.tokens[i] in CLOSER) - (self.tokens[i] in CLOSER.values())
            if depth == 0:
                return i + 1
        return len(self.tokens)

    def opening(self, index):
        """The index of the bracket that the one at index closes."""
        depth = 0
        for i in range(index, -1, -1):
            depth += (self.tokens[i] in CLOSER.values()) - (self.tokens[i] in CLOSER)
            if depth == 0:
                return i
        return 0

    def operand_end(self, index):
        """The index after the operand of a "+" that starts at index."""
        if self.tokens[index] == "*":
            index += 1
        if self.tokens[index] == "(":
            return self.closing(index)
        index += 1
        while index < len(self.tokens):
            if self.tokens[index] in ("(", "["):
                index = self.closing(index)
            elif self.tokens[index] in ("::", ".", "->"):
                index += 2
            elif self.tokens[index].startswith('"') and self.tokens[index - 1].startswith('"'):
                index += 1
            else:
                break
        return index

    def operand_start(self, index):
        """The index at which the operand of a "+" starts whose last token is at index."""
        while True:
            if self.tokens[index] in (")", "]"):
                index = self.opening(index) - 1
                if not re.match(r"\w", self.tokens[index]):
                    return index + 1
            elif self.tokens[index - 1] in ("::", ".", "->"):
                index -= 2
            elif self.tokens[index].startswith('"') and self.tokens[index - 1].startswith('"'):
                index -= 1
            else:
                return index

    def texts(self, first=0, end=None):
        """The texts of the literals in a range of tokens, each with what is added to it by "+"."""
        end = len(self.tokens) if end is None else end
        result = []
        index = first
        while index < end:
            if not self.tokens[index].startswith('"'):
                index += 1
                continue
            start = index
            while start > 1 and self.tokens[start - 1] == "+":
                start = self.operand_start(start - 2)
            text = ""
            index = start
            while True:
                operand_end = self.operand_end(index)
                operand = self.tokens[index:operand_end]
                is_literal = all(token[0] in "\"'" for token in operand)
                text += "".join(map(unquoted, operand)) if is_literal else "%"
                index = operand_end
                if index + 1 >= len(self.tokens) or self.tokens[index] != "+":
                    break
                index += 1
            result.append(normalised(text))
        return result

    def texts_in_calls(self, is_called):
        """The texts in the arguments of every function whose name is_called() accepts."""
        result = []
        for index, token in enumerate(self.tokens[:-1]):
            if is_called(token) and self.tokens[index + 1] == "(":
                result += self.texts(index + 1, self.closing(index + 1))
        return result

    def texts_in_statements(self, is_first):
        """The texts from a token that is_first() accepts to the end of its statement."""
        result = []
        for index, token in enumerate(self.tokens):
            if is_first(token) and ";" in self.tokens[index:]:
                result += self.texts(index, self.tokens.index(";", index))
        return result


def sources(root, *folders):
    return [Source(path) for folder in folders for path in sorted(pathlib.Path(root, folder).glob("*.[ch]*"))]


def window_texts(root):
    """Every text that a person can see in the window, and every one that the translators get."""
    texts = set()
    for source in sources(root, "app", "ui", "config", "camera"):
        texts.update(source.texts_in_calls(lambda name: name == "tr"))
    for form in sorted(pathlib.Path(root, "ui").glob("*.ui")):
        document = xml.etree.ElementTree.parse(form)
        texts.update(normalised(node.text) for node in document.iter("string") if node.text)
    return texts - {""}


def box_texts(root):
    """The titles and texts of message boxes."""
    texts = set()
    for source in sources(root, "app", "ui", "config", "camera"):
        texts.update(source.texts_in_statements(lambda name: name == "QMessageBox"))
    return texts


def launcher_log_texts(root):
    """What the program itself prints on standard error."""
    texts = set()
    for source in sources(root, "app", "ui", "config", "camera"):
        texts.update(source.texts_in_statements(LOG_CALL.fullmatch))
    return {text for text in texts if text != "LauncherConfig"}  # The translation's context.


def is_message(text):
    return re.search(r"[A-Za-z]{2}.* |^ .*[A-Za-z]{2}| [A-Za-z]{2}", text) is not None and text not in NO_MESSAGES


def sdk_texts(root):
    """What the SDK prints, and the reasons of which such lines are made."""
    texts = set()
    for source in sources(root, *SDK_FOLDERS):
        found = source.texts()
        if source.path.parent.name == "producer":
            found = source.texts_in_calls(lambda name: name.endswith("_error"))
        texts.update(text for text in found if is_message(text))
        if source.path.name == "ExitReason.cpp":
            texts.update(found)
    return {text for text in texts if re.search(r"[A-Za-z]{2}", text)}
