"""The C face for Python, generated from docs/zeldata.json with ctypes.

`Library(path)` has a method for each function of the list, without its prefix `zeldata_`. A text is
passed as bytes, without a length."""

import ctypes
import json
from pathlib import Path

LIST = json.loads((Path(__file__).parents[2] / "docs/zeldata.json").read_text(encoding="ascii"))
CONSTANTS = LIST["constants"]
CODES = {value: name for name, value in CONSTANTS.items() if value in (0, *range(0x40000001, 0x40000010),
                                                                      *range(0x80000001, 0x80000010))}
FUNCTIONS = LIST["functions"]
TERMINATED = ctypes.c_size_t(-1).value

NUMBERS = {"int32_t": ctypes.c_int32, "uint32_t": ctypes.c_uint32, "int64_t": ctypes.c_int64,
           "uint64_t": ctypes.c_uint64, "float": ctypes.c_float, "size_t": ctypes.c_size_t}


def ctype(name):
    """The ctypes type for a type of the list."""
    plain = name.removeprefix("const ")
    if plain == "void":
        return None
    if plain == "char*":
        return ctypes.c_char_p if name != plain else ctypes.c_void_p
    if plain.endswith("**"):
        return ctypes.POINTER(ctypes.c_void_p)
    if plain.startswith("zeldata_") or plain == "void*":
        return ctypes.c_void_p
    if plain.endswith("*"):
        return ctypes.POINTER(NUMBERS[plain[:-1]])
    return NUMBERS[plain]


class Failure(Exception):
    """A call returned a code other than ZELDATA_OK."""

    def __init__(self, name, code, message):
        super().__init__(f"{name}: {CODES.get(code, hex(code))}: {message}")
        self.code = code


class Library:
    """The functions as they are in C, and below them what makes them easy to use."""

    def __init__(self, path):
        self.loaded = ctypes.CDLL(str(path))
        for function in FUNCTIONS:
            found = getattr(self.loaded, function["name"])
            found.restype = ctype(function["result"])
            found.argtypes = [ctype(kind) for kind, _ in function["parameters"]]

    def function(self, name):
        """The function of C with this name."""
        return getattr(self.loaded, name)

    def code(self, name, *arguments):
        """The result of zeldata_NAME."""
        passed = []
        for argument in arguments:
            if isinstance(argument, bytes):
                passed += [argument, len(argument)]
            else:
                passed.append(argument.handle if isinstance(argument, Handle) else argument)
        return self.function("zeldata_" + name)(*passed)

    def call(self, name, *arguments):
        """Calls zeldata_NAME and raises Failure unless it returns ZELDATA_OK."""
        code = self.code(name, *arguments)
        if code != CONSTANTS["ZELDATA_OK"]:
            first = arguments[0].handle if arguments and isinstance(arguments[0], Handle) else None
            raise Failure(name, code, self.message(first))

    def message(self, handle):
        return self.loaded.zeldata_last_message(handle).decode()

    def new(self, kind, *arguments):
        return Handle(self, kind, *arguments)

    def text(self, name, *arguments):
        """The text that zeldata_NAME stores in its last argument."""
        with self.new("string") as result:
            self.call(name, *arguments, result)
            return result.bytes()


class Handle:
    """What zeldata_KIND_create gives; destroyed at the end of a `with` block."""

    def __init__(self, library, kind, *arguments):
        self.library, self.kind = library, kind
        place = ctypes.c_void_p()
        library.call(f"{kind}_create", ctypes.byref(place), *arguments)
        self.handle = place

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.library.code(f"{self.kind}_destroy", self)

    def __getattr__(self, operation):
        return lambda *arguments: self.library.call(f"{self.kind}_{operation}", self, *arguments)

    def bytes(self):
        """The bytes of a text, copied into a buffer."""
        size = self.library.loaded.zeldata_string_get_size(self.handle) + 1
        buffer, needed = ctypes.create_string_buffer(size), ctypes.c_size_t()
        self.copy(buffer, size, ctypes.byref(needed))
        assert needed.value == size
        return buffer.raw[:-1]
