"""Good arguments for every function of the list."""

import ctypes

from binding import CONSTANTS, FUNCTIONS, TERMINATED, ctype


def of_code():
    """The functions that return a code and take a pointer."""
    return [function for function in FUNCTIONS
            if function["result"] == "uint32_t" and any("*" in kind for kind, _ in function["parameters"])]


def has_message(function):
    """Whether the function is called through a handle, which keeps the message."""
    kind = function["parameters"][0][0].removeprefix("const ")
    return function["name"].startswith(kind.removesuffix("*") + "_") and not kind.endswith("**")


class World:
    """An object of each kind, with contents, and places for what functions store."""

    def __init__(self, library, text=b"en"):
        self.library, self.text = library, text
        self.handles = {}
        for kind in ("string", "strings", "findings", "document", "header", "captions", "caption_item", "toc",
                     "toc_item", "screen_text", "screen_text_item"):
            self.handles[f"zeldata_{kind}"] = self.library.new(kind)
        for kind in ("header", "caption", "toc", "screen_text"):
            name = f"{kind}_formatter"
            self.handles[f"zeldata_{name}"] = self.library.new(name, CONSTANTS["ZELDATA_FORMAT_XMP"])
        self.handles["zeldata_caption_item"].set_duration(1)
        for collection, item in (("captions", "caption_item"), ("toc", "toc_item"),
                                 ("screen_text", "screen_text_item")):
            self.handles[f"zeldata_{collection}"].add_item(self.handles[f"zeldata_{item}"])
        self.made = []

    def fill(self):
        """Gives the document everything that it can write."""
        header = self.handles["zeldata_header"]
        for size in ("length", "width", "height"):
            getattr(header, f"set_video_{size}")(100)
        document = self.handles["zeldata_document"]
        for kind in ("header", "captions", "toc", "screen_text"):
            getattr(document, f"set_{kind}")(self.handles[f"zeldata_{kind}"])

    def close(self):
        for kind, place in self.made:
            if place:
                self.library.function(f"{kind}_destroy")(place)
        for handle in self.handles.values():
            handle.__exit__()

    def good(self, kind):
        """A good argument of this type."""
        plain = kind.removeprefix("const ")
        if plain.endswith("**"):
            place = ctypes.c_void_p()
            self.made.append((plain[:-2], place))
            return ctypes.byref(place)
        if plain == "void*":
            return self.handles["zeldata_header"].handle
        if plain.startswith("zeldata_"):
            return self.handles[plain[:-1]].handle
        if kind == "const char*":
            return self.text
        if kind == "char*":
            return ctypes.create_string_buffer(100)
        if kind.endswith("*"):
            return ctypes.byref(ctype(kind)._type_())
        return {"size_t": TERMINATED, "float": 0.5}.get(kind, 1)
