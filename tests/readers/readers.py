"""Runs third-party programs that read packets.

read() returns the packet's data in the shape that documents.py describes, without the date. shown()
applies a reader's own rules, for example for attributes, to expected data. The exit statuses of these
programs prove nothing, so read() also checks what they print."""

import json
import os
import re
import subprocess
import xml.etree.ElementTree as ElementTree

from documents import Item

RDF = "http://www.w3.org/1999/02/22-rdf-syntax-ns#"
XML_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
PREFIXES = {
    RDF: "rdf",
    "adobe:ns:meta/": "x",
    "http://ns.adobe.com/xmp/1.0/DynamicMedia/": "xmpDM",
    "http://ns.adobe.com/xap/1.0/g/": "xmpG",
    "http://ns.adobe.com/xap/1.0/sType/Dimensions#": "stDim",
    "http://ns.adobe.com/xap/1.0/sType/Font#": "stFnt",
    "http://purl.org/dc/elements/1.1/": "dc",
    "http://ns.zel.example/xmp/zel/": "zel",
    "http://ns.zel.example/xmp/zelDM/": "zelDM",
}
CONTAINERS = {f"{{{RDF}}}{kind}" for kind in ("Bag", "Seq", "Alt")}
DATE = re.compile(r"\d{4,}[-:]\d\d[-:]\d\d[T ]\d\d:\d\d:\d\d[-+]\d{1,2}:00")


class Refused(Exception):
    """The reader rejected the packet or complained about it."""


def run(*command):
    """Returns what the program prints. Raises Refused if it fails or prints on standard error."""
    result = subprocess.run(command, capture_output=True, check=False)
    if result.returncode != 0 or result.stderr:
        raise Refused(f"{command[0]}: {result.returncode}: {result.stderr.decode()}")
    return result.stdout.decode()


def without_date(data, key="dc:date"):
    """The data without the date. Raises Refused if the date does not look like one."""
    date = data.pop(key)
    date = date[0].text if isinstance(date, list) else date
    if not DATE.fullmatch(date):
        raise Refused(f"not a date: {date}")
    return data


def changed(value, attribute, item):
    """A copy of the expected data with attribute() applied to attributes and item() to Items."""
    if isinstance(value, Item):
        return item(value)
    if isinstance(value, dict):
        return {key: changed(part, attribute, item) for key, part in value.items()}
    if isinstance(value, list):
        return [changed(part, attribute, item) for part in value]
    return attribute(value)


def same(value):
    return value


# --- RDF/XML, for the readers that print it -----------------------------------------------------


def short(name):
    """ElementTree's form of a name, with the usual prefix instead of the URI."""
    uri, _, local = name.removeprefix("{").partition("}")
    return f"{PREFIXES[uri]}:{local}"


def properties_in_attributes(element):
    return {short(name): value for name, value in element.attrib.items()
            if name != XML_LANGUAGE and not name.startswith(f"{{{RDF}}}")}


def structure(element):
    """The properties that an element holds as attributes and as children."""
    found = properties_in_attributes(element)
    for child in element:
        name = short(child.tag)
        if name in found:
            raise Refused(f"{name} occurs twice")
        found[name] = value_of(child)
    return found


def list_entry(element):
    value = value_of(element)
    return Item(element.get(XML_LANGUAGE), value) if isinstance(value, str) else value


def value_of(element):
    """The value of a property."""
    children = list(element)
    if len(children) == 1 and children[0].tag in CONTAINERS:
        return [list_entry(child) for child in children[0]]
    if len(children) == 1 and children[0].tag == f"{{{RDF}}}Description":
        return structure(children[0])
    if children or properties_in_attributes(element):
        return structure(element)
    return element.text or ""


def data_of_rdf_xml(text):
    description = ElementTree.fromstring(text).findall(f"{{{RDF}}}RDF/{{{RDF}}}Description")
    if len(description) != 1:
        raise Refused(f"{len(description)} descriptions")
    return without_date(structure(description[0]))


def line_feeds_as_spaces(text):
    """The text as XML readers normalise it in an attribute."""
    return text.replace("\n", " ")


# --- The readers ---------------------------------------------------------------------------------


class Xmllint:
    """libxml2: checks the packet for well-formedness and undeclared namespaces, and reads its tree."""

    @staticmethod
    def read(path):
        program = os.environ["XMLLINT"]
        if run(program, "--nonet", "--noout", path):
            raise Refused("xmllint printed something")
        return data_of_rdf_xml(run(program, "--nonet", "--c14n", path))

    @staticmethod
    def shown(data):
        return changed(data, line_feeds_as_spaces, same)


class Rapper:
    """Raptor: the packet as a graph."""

    TRIPLE = re.compile(r'(\S+) <([^>]*)> (?:"((?:[^"\\]|\\.)*)"(?:@(\S+))?|(\S+)) \.')
    ESCAPE = re.compile(r'\\(?:u([0-9A-F]{4})|U([0-9A-F]{8})|([tnr"\\]))')
    CHARACTERS = {"t": "\t", "n": "\n", "r": "\r", '"': '"', "\\": "\\"}

    @classmethod
    def read(cls, path):
        # Skips the element around the RDF, and keeps language IDs as written.
        output = run(os.environ["RAPPER"], "-q", "-i", "rdfxml", "-f", "scanForRDF=1",
                     "-f", "normalizeLanguage=0", "-o", "ntriples", path)
        graph = {}
        for line in output.splitlines():
            subject, predicate, text, language, other = cls.TRIPLE.fullmatch(line).groups()
            value = other if text is None else Item(language, cls.unescaped(text))
            cls.add(graph.setdefault(subject, {}), predicate, value)
        roots = [node for node in graph if "http://ns.zel.example/xmp/zel/version" in graph[node]]
        if len(roots) != 1:
            raise Refused(f"{len(roots)} descriptions")
        return without_date(cls.tree(graph, roots[0]))

    @staticmethod
    def add(node, predicate, value):
        if predicate in node:
            raise Refused(f"{predicate} occurs twice")
        node[predicate] = value

    @classmethod
    def unescaped(cls, text):
        return cls.ESCAPE.sub(lambda match: cls.CHARACTERS[match[3]] if match[3] else
                              chr(int(match[1] or match[2], 16)), text)

    @classmethod
    def tree(cls, graph, name):
        """The data of the named node."""
        node = dict(graph[name])
        kind = node.pop(RDF + "type", None)
        if kind is None:
            return {cls.name_of(predicate): cls.value(graph, value)
                    for predicate, value in node.items()}
        return [value if isinstance(value, Item) else cls.tree(graph, value)
                for _, value in sorted(node.items(), key=cls.position)]

    @staticmethod
    def position(entry):
        return int(entry[0].removeprefix(RDF + "_"))

    @classmethod
    def value(cls, graph, value):
        return value.text if isinstance(value, Item) else cls.tree(graph, value)

    @staticmethod
    def name_of(predicate):
        uri = next(uri for uri in PREFIXES if predicate.startswith(uri))
        return f"{PREFIXES[uri]}:{predicate.removeprefix(uri)}"

    @classmethod
    def shown(cls, data):
        return changed(data, cls.folded, same)

    @staticmethod
    def folded(text):
        """In attributes it strips spaces at both ends and collapses runs of them."""
        return re.sub(r"[ \n]+", " ", text).strip(" ")


class Exempi:
    """The XMP toolkit: reads the packet and writes it again."""

    @staticmethod
    def read(path):
        output = run(os.environ["EXEMPI"], "-X", "-x", path)
        packet = re.search(r"<x:xmpmeta.*</x:xmpmeta>", output, re.DOTALL)
        if not packet:
            raise Refused(output)
        return data_of_rdf_xml(packet[0])

    @classmethod
    def shown(cls, data):
        data = changed(data, lambda text: cls.without_delete(line_feeds_as_spaces(text)),
                       lambda item: Item(cls.canonical(item.language),
                                         cls.without_delete(item.text)))
        # Their namespace defines these two as lists.
        data["dc:title"] = [Item("x-default", data["dc:title"])]
        data["dc:creator"] = [Item(None, data["dc:creator"])]
        return data

    @staticmethod
    def without_delete(text):
        """It replaces U+007F with a space."""
        return text.replace("\x7f", " ")

    @staticmethod
    def canonical(language):
        """Lower case, but the second part in upper case when it has two letters."""
        first, *rest = language.lower().split("-")
        return "-".join([first] + [part.upper() if index == 0 and len(part) == 2 else part
                                   for index, part in enumerate(rest)])


class ExifTool:
    """ExifTool: reads texts in written order, without the languages inside structures."""

    @classmethod
    def read(cls, path):
        output = run(os.environ["EXIFTOOL"], "-m", "-j", "-struct", "-a", "-G1", path)
        [tags] = json.loads(output, parse_int=str, parse_float=str)
        complaints = {tag: text for tag, text in tags.items() if "Warning" in tag or "Error" in tag}
        if complaints:
            raise Refused(str(complaints))
        data = {tag: value for tag, value in tags.items() if tag.startswith("XMP-")}
        return cls.as_text(without_date(data, "XMP-dc:Date"))

    @classmethod
    def as_text(cls, value):
        """The data with numbers and truth values as text, as in the JSON."""
        if isinstance(value, dict):
            return {key: cls.as_text(part) for key, part in value.items()}
        if isinstance(value, list):
            return [cls.as_text(part) for part in value]
        return str(value).lower() if isinstance(value, bool) else value

    @classmethod
    def shown(cls, data):
        data = changed(data, cls.scalar, lambda item: cls.scalar(item.text))
        # It converts this fraction.
        data["xmpDM:duration"]["xmpDM:scale"] = "0.001"
        return {f"XMP-{prefix}:{cls.tag(local)}": cls.inside(value) if value != [] else ""
                for key, value in data.items() for prefix, local in [key.split(":")]}

    @classmethod
    def inside(cls, value):
        """The data of a structure, in which names have no prefix."""
        if isinstance(value, dict):
            return {cls.tag(key.split(":")[1]): cls.inside(part) for key, part in value.items()}
        if isinstance(value, list):
            return [cls.inside(part) for part in value]
        return value

    @staticmethod
    def tag(local):
        return local[0].upper() + local[1:]

    @staticmethod
    def scalar(text):
        """It prints truth values in lower case."""
        return text.lower() if text.lower() in ("true", "false") else text
