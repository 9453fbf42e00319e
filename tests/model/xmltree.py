"""The element tree: it is built by paths and does not escape what it writes."""

DECLARATION = b'<?xml version="1.0" encoding="utf-8" ?>'

SPECIAL = ((b"&", b"&amp;"), (b"<", b"&lt;"), (b">", b"&gt;"), (b'"', b"&quot;"), (b"'", b"&apos;"))


class Attribute:
    def __init__(self, owner):
        self.owner = owner
        self.name = b""
        self.value = b""
        self.named = False

    def written(self):
        return self.name + b'="' + self.value + b'" '


class Node:
    def __init__(self, parent):
        self.parent = parent
        self.name = b""
        self.text = b""
        self.text_reached = False
        self.attributes = []
        self.children = []
        self.group = {}

    def path(self, path):
        # Paths are zero-terminated; a name that is set directly is not.
        path = path.partition(b"\0")[0]
        head, slash, rest = path.partition(b"/")
        found = self.group.get(head)
        if found is None:
            return self.new_child(head, path)
        if slash and head == b"":
            return found
        return found.path(rest if slash else path)

    def new_child(self, key, path):
        child = Node(self)
        self.group[key] = child
        self.children.append(child)
        return child.set_name(path)

    def set_name(self, path):
        self.name, slash, rest = path.partition(b"/")
        return self.path(rest) if slash else self

    def new_group(self):
        self.group = {}
        return self

    def new_attribute(self):
        self.attributes.append(Attribute(self))
        return self.attributes[-1]

    def reach_text(self):
        self.text_reached = True

    def set_text(self, text):
        """Returns the parent, but only if the text of the node was reached before."""
        self.text = text
        return self.parent if self.text_reached else None

    def written(self):
        attributes = b"".join(attribute.written() for attribute in self.attributes)
        start = self.name + (b" " + attributes if attributes else b"")
        inner = b"".join(c.written() for c in self.children) if self.children else self.text
        return b"<" + start + b">" + inner + b"</" + self.name + b">"


class Stream(Node):
    def __init__(self):
        super().__init__(None)

    def xml(self, with_declaration):
        start = DECLARATION if with_declaration else b""
        return start + b"".join(child.written() for child in self.children)


def safe_xml(text):
    for character, entity in SPECIAL:
        text = text.replace(character, entity)
    return text
