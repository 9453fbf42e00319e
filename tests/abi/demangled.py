"""Demangled names in a form that people can read and type."""

import re

NAMESPACE = "ZelInterchangeData::"

STRING = re.compile(r"std::(?:__cxx11::)?basic_string<char, std::char_traits<char>, "
                    r"std::allocator<char> ?>")
VECTOR = re.compile(r"std::vector<([^<>]+), std::allocator<\1 ?> ?>")


def shortened(name):
    """The name without the project's namespace, the library's types written as in the sources."""
    name = VECTOR.sub(r"std::vector<\1>", STRING.sub("std::string", name))
    return name.replace("[abi:cxx11]", "").replace(NAMESPACE, "")
