"""What a declaration says, once it is read."""
import re
from dataclasses import dataclass, field

# Types of the declarations: what C calls them, what C++ calls them, the unit that a number of this kind has.
TYPES = {
    "u8": ("uint8_t", "std::uint8_t", ""), "u16": ("uint16_t", "std::uint16_t", ""),
    "u32": ("uint32_t", "std::uint32_t", ""), "i32": ("int32_t", "std::int32_t", ""),
    "char": ("char", "char", ""), "bytes": ("void", "std::uint8_t", ""),
    "word": ("uintptr_t", "std::uintptr_t", ""), "event": ("QV_EVENT", "QV_EVENT", ""),
    "ms": ("uint32_t", "std::uint32_t", "ms"),
    "flag": ("uint32_t", "std::uint32_t", ""),   # 0 or not
    "band": ("uint32_t", "std::uint32_t", ""),   # of a handset: one of BANDS
    "text": ("char", "char", ""),                # ends with a zero; always a pointer
}
BANDS = {0: "QV_BAND_GSM", 1: "QV_BAND_DCS", 3: "QV_BAND_PCS", 4: "QV_BAND_GSM850"}
# How a command uses the link, and the results that follow from it. Without a port none runs at all.
USES = {
    "asks": ("PortNotOpen", "WriteFailed", "NoAnswer", "Refused"),
    "sends": ("PortNotOpen", "WriteFailed"),
    "listens": ("PortNotOpen", "NoAnswer", "Refused"),
    "local": ("PortNotOpen",),
    "components": ("PortNotOpen", "DownloadRegister", "DownloadStart"),
    "unsupported": ("PortNotOpen", "NotSupported"),
}


def camel(name):
    head, *tail = name.split("_")
    return head + "".join(part.capitalize() for part in tail)


@dataclass
class Argument:
    name: str
    type: str
    direction: str = "value"     # value, in, out, inout
    extent: str = ""             # elements that the pointer leads to; empty for one
    stored: str = ""             # the argument that tells how many elements were stored
    low: int | None = None
    high: int | None = None
    one_of: tuple = ()
    optional: bool = False       # null is allowed
    when: str = ""               # checked only when this holds
    documentation: list = field(default_factory=list)

    @property
    def is_pointer(self):
        return self.direction != "value"

    @property
    def c_element(self):
        return TYPES[self.type][0] if self.type in TYPES else self.type

    @property
    def cpp_element(self):
        return TYPES[self.type][1] if self.type in TYPES else self.type

    def c_type(self):
        if not self.is_pointer:
            return self.c_element + " "
        return ("const " if self.direction == "in" else "") + self.c_element + " *"

    def cpp_parameter(self):
        """As the exported function's argument, in C++."""
        if not self.is_pointer:
            return f"{self.cpp_element} {camel(self.name)}"
        element = "void" if self.type == "bytes" else self.cpp_element
        return ("const " if self.direction == "in" else "") + f"{element}* {camel(self.name)}"

    @property
    def fixed_extent(self):
        return int(self.extent) if self.extent.isdigit() else None

    @property
    def is_open_ended(self):
        """A record whose last field holds as many elements as the record itself counts."""
        return self.extent == "..."

    @property
    def least(self):
        """The lowest value that is taken, where lower ones can be given."""
        return self.low if self.low is not None and (self.low > 0 or self.type == "i32") else None

    @property
    def may_be_null(self):
        return self.optional or bool(self.when and self.is_pointer)


@dataclass
class Declaration:
    kind: str                    # command, session, project
    name: str
    operation: int | None = None
    reported_as: str = ""        # the command that it ends in, whose operation it has
    uses: str = "local"
    flags: frozenset = frozenset()
    arguments: list = field(default_factory=list)
    requirements: list = field(default_factory=list)   # (C++ condition, text when it does not hold)
    log: str | None = None       # C++ expression of what is logged ahead of the body; None: nothing, or the body does
    log_names: list = field(default_factory=list)
    runs: str = ""               # C++ expression in place of a body of the command's own name
    brief: list = field(default_factory=list)          # lines ahead of the parameters
    results: list = field(default_factory=list)        # [name of result_codes.def, lines]
    group: str = ""
    unit: str = ""               # the file, without order number and ending
    item: dict | None = None     # the calibration item that it reads or writes

    @property
    def returns(self):
        return "void" if "void" in self.flags else "int32_t"

    @property
    def returns_result(self):
        """Whether what it returns is a QV_RESULT."""
        return not {"void", "number"} & self.flags

    @property
    def has_twin(self):
        return self.kind != "session" and not {"plain", "decorated"} & self.flags

    def argument(self, name):
        return next((argument for argument in self.arguments if argument.name == name), None)

    def counts(self, argument):
        """Whether the argument is only the number of elements that another one's pointer leads to."""
        return argument.direction == "value" and any(other.extent == argument.name for other in self.arguments)


@dataclass
class Export:
    """One exported function: a declaration's own, or its twin for a port."""
    declaration: Declaration
    twin: bool

    port = Argument("port", "i32", low=1, documentation=["opened with QV_BeginPhoneTest or QV_BeginPhoneTest_MT"])

    @property
    def name(self):
        return f"QV_{self.declaration.name}{'_MT' if self.twin else ''}"

    @property
    def decorated(self):
        return ("twin-decorated" if self.twin else "decorated") in self.declaration.flags

    @property
    def arguments(self):
        return ([self.port] if self.twin else []) + self.declaration.arguments

    @property
    def argument_bytes(self):
        # Every argument takes one stack slot of 4 bytes on 32-bit Windows; there are no 64-bit ones.
        return 4 * len(self.arguments)

    @property
    def windows_name(self):
        return f"_{self.name}@{self.argument_bytes}" if self.decorated else self.name

    def symbol(self, stdcall):
        return self.name + (f"@{self.argument_bytes}" if stdcall else "")


@dataclass
class ResultCode:
    code: int
    internal: str
    name: str                    # in logs; may be empty
    meaning: str
    advice: str

    @property
    def short_name(self):
        """The name that says in plain words what happened; often the log's own."""
        words = re.sub(r"(?<=[a-z])(?=[A-Z])", "_", self.internal)
        return "PC_ERR_" + words.upper()

    @property
    def public_name(self):
        return self.name or self.short_name


@dataclass
class DiagnosticFunction:
    """A function of diagnostics.h, which declares itself there."""
    name: str
    argument_bytes: int          # as an export's

    @property
    def windows_name(self):
        return self.name

    def symbol(self, stdcall):
        return self.name + (f"@{self.argument_bytes}" if stdcall else "")


@dataclass
class Api:
    declarations: list
    items: list                  # calibration items
    result_codes: list
    includes: dict               # unit: headers that its `runs` and `require` expressions need
    diagnostics: list            # functions beside the exports

    @property
    def exports(self):
        for declaration in self.declarations:
            yield Export(declaration, False)
            if declaration.has_twin:
                yield Export(declaration, True)

    @property
    def published(self):
        """Everything that the library lets others link against."""
        return [*self.exports, *self.diagnostics]

    @property
    def operation_names(self):
        """(id, name of the first declaration that records it), by id."""
        names = {}
        for declaration in self.declarations:
            if declaration.operation and not declaration.reported_as:
                names.setdefault(declaration.operation, declaration.name)
        return sorted(names.items())

    def result(self, internal):
        return next(code for code in self.result_codes if code.internal == internal)
