"""Finds what can be mutated in a source file, and writes the file with every mutant in it.

A mutant is an expression of a function's body, what stands in its place, and a number. The file written
asks at each such expression whether its mutant is the one chosen; lines keep their numbers. libclang
tells where expressions begin and end. What macros expand to is left alone, and so is what is computed
while compiling: cases, sizes, arguments of templates.
"""

import hashlib
import re
from dataclasses import dataclass, field

from clang import cindex
from clang.cindex import CursorKind as Kind

OPERATORS = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",),
    "+": ("-",), "-": ("+",), "*": ("+",), "/": ("*",), "%": ("+",), "&&": ("||",), "||": ("&&",),
    "&": ("|",), "|": ("&",), "<<": (">>",), ">>": ("<<",), "+=": ("-=",), "-=": ("+=",),
}
OVERLOADED = ("==", "!=", "<", ">", "<=", ">=")
FUNCTIONS = (Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.FUNCTION_TEMPLATE, Kind.CONVERSION_FUNCTION)


@dataclass
class Mutant:
    path: str  # from the project's root
    start: int
    end: int
    line: int
    kind: str  # operator, constant, condition or call
    text: str  # the expression as it is
    change: str  # as people read it
    code: str  # what stands in its place
    source_line: str
    at_run_time: bool  # within a function that the compiler may run as well
    number: int = -1
    occurrence: int = 0
    parts: list = field(default_factory=list)

    @property
    def name(self):
        """The same in every version of the file that has the line."""
        return f"{self.path}|{self.source_line}|{self.change}|{self.occurrence}"

    @property
    def rank(self):
        return hashlib.sha256(self.name.encode()).hexdigest()


class Finder:
    """Reads one file."""

    def __init__(self, path, source, arguments):
        self.path = path
        self.source = source.encode()
        self.found = []
        self.lines = source.split("\n")
        unit = cindex.Index.create().parse(str(arguments["file"]), args=arguments["flags"])
        worst = [d for d in unit.diagnostics if d.severity >= cindex.Diagnostic.Error]
        if worst:
            raise SystemExit(f"mutation: clang does not read {path}: {worst[0]}")
        for cursor in unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name == str(arguments["file"]):
                self._outside(cursor)
        seen = {}
        for mutant in self.found:
            key = (mutant.source_line, mutant.change)
            mutant.occurrence = seen[key] = seen.get(key, -1) + 1

    def _outside(self, cursor):
        if cursor.kind in FUNCTIONS:
            for child in cursor.get_children():
                if child.kind == Kind.COMPOUND_STMT:
                    head = self._text(cursor.extent.start.offset, child.extent.start.offset)
                    self._inside(child, "constexpr" in head or "consteval" in head)
        elif cursor.kind in (Kind.NAMESPACE, Kind.CLASS_DECL, Kind.STRUCT_DECL, Kind.CLASS_TEMPLATE, Kind.LINKAGE_SPEC, Kind.UNEXPOSED_DECL):
            for child in cursor.get_children():
                self._outside(child)

    def _text(self, start, end):
        return self.source[start:end].decode(errors="replace")

    def _of(self, cursor):
        return self._text(cursor.extent.start.offset, cursor.extent.end.offset)

    def _add(self, cursor, kind, change, code, late):
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        text = self._text(start, end)
        if not text or "//" in text or "#" in text or "assert(" in text or "\n" in text and text.count("\n") > 8:
            return
        line = cursor.extent.start.line
        one_line = lambda code: re.sub(r"\s*\n\s*", " ", code)
        self.found.append(
            Mutant(self.path, start, end, line, kind, one_line(text), one_line(change), one_line(code), self.lines[line - 1].strip(), late)
        )

    def _inside(self, cursor, late):
        children = list(cursor.get_children())
        kind = cursor.kind
        if kind == Kind.VAR_DECL and re.match(r"\s*(static\s+)?(inline\s+)?constexpr\b", self._of(cursor)):
            return
        if kind in (Kind.CASE_STMT,) and children:
            children = children[1:]
        if kind in (Kind.STATIC_ASSERT, Kind.TYPE_REF, Kind.TEMPLATE_REF, Kind.CLASS_DECL, Kind.STRUCT_DECL, Kind.ENUM_DECL):
            return
        self._mutants_of(cursor, kind, children, late)
        for child in children:
            self._inside(child, late)

    def _mutants_of(self, cursor, kind, children, late):
        if kind in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            self._operator(cursor, children[0], children[1], OPERATORS, late)
        elif kind == Kind.CALL_EXPR and len(children) == 3 and cursor.spelling.startswith("operator"):
            self._operator(cursor, children[0], children[2], {o: OPERATORS[o][:1] for o in OVERLOADED}, late)
        elif kind == Kind.UNARY_OPERATOR and len(children) == 1:
            self._unary(cursor, late)
        elif kind == Kind.INTEGER_LITERAL:
            text = self._of(cursor)
            if re.fullmatch(r"(0x[0-9a-fA-F]+|[0-9][0-9']*)[uUlLzZ]*", text):
                self._add(cursor, "constant", f"{text} + 1", f"{text} + 1", late)
        elif kind == Kind.FLOATING_LITERAL:
            text = self._of(cursor)
            if re.fullmatch(r"[0-9.][0-9.eE'+-]*[fF]?", text):
                self._add(cursor, "constant", f"{text} + 1", f"{text} + 1", late)
        elif kind == Kind.CXX_BOOL_LITERAL_EXPR:
            text = self._of(cursor)
            if text in ("true", "false"):
                other = "false" if text == "true" else "true"
                self._add(cursor, "constant", f"{text} -> {other}", other, late)
        elif kind in (Kind.IF_STMT, Kind.WHILE_STMT):
            self._condition(cursor, children, late)
        elif kind == Kind.CONDITIONAL_OPERATOR and len(children) == 3:
            text = self._of(children[0])
            self._add(children[0], "condition", f"{text} -> not", f"!({text})", late)
        if kind in (Kind.COMPOUND_STMT, Kind.IF_STMT, Kind.FOR_STMT, Kind.CXX_FOR_RANGE_STMT, Kind.WHILE_STMT, Kind.CASE_STMT, Kind.DEFAULT_STMT):
            body = children if kind == Kind.COMPOUND_STMT else children[-1:] if kind != Kind.IF_STMT else children[1:]
            for child in body:
                self._call(child, late)

    def _operator(self, cursor, left, right, table, late):
        start, end = left.extent.end.offset, right.extent.start.offset
        between = self._text(start, end)
        operator = between.strip()
        if operator not in table or left.extent.start.offset != cursor.extent.start.offset:
            return
        first, second = self._of(left), self._of(right)
        for other in table[operator]:
            self._add(cursor, "operator", f"{first} {other} {second}", f"{first} {other} {second}", late)

    def _unary(self, cursor, late):
        text = self._of(cursor)
        if text.startswith("!="):
            return  # what the language makes of a comparison of ours
        if text.startswith("!"):
            self._add(cursor, "operator", text[1:], f"static_cast<bool>({text[1:]})", late)
        elif text.startswith("++"):
            self._add(cursor, "operator", f"--{text[2:]}", f"--{text[2:]}", late)
        elif text.startswith("--"):
            self._add(cursor, "operator", f"++{text[2:]}", f"++{text[2:]}", late)

    def _condition(self, cursor, children, late):
        if any(child.kind == Kind.VAR_DECL for child in children):
            return
        expressions = [child for child in children if child.kind.is_expression()]
        if not expressions:
            return
        condition = expressions[0]
        before = self._text(cursor.extent.start.offset, condition.extent.start.offset)
        if not re.match(r"(if|while)\s*\(", before):
            return
        text = self._of(condition)
        values = ("true", "false") if cursor.kind == Kind.IF_STMT else ("false",)
        for value in values:
            self._add(condition, "condition", f"{text} -> {value}", value, late)

    def _call(self, statement, late):
        call = statement
        while call.kind == Kind.UNEXPOSED_EXPR:
            inner = list(call.get_children())
            if len(inner) != 1:
                return
            call = inner[0]
        if call.kind != Kind.CALL_EXPR or call.extent.start.offset != statement.extent.start.offset:
            return
        text = self._of(statement)
        after = self._text(statement.extent.end.offset, statement.extent.end.offset + 1)
        if after != ";" or text.startswith(("return", "assert", "Q_")):
            return
        self._add(statement, "call", f"drop {text}", "", late)


def mutated(source, mutants, header):
    """The file with these mutants in it."""
    text = source.encode()
    ranges = {}
    for mutant in mutants:
        ranges.setdefault((mutant.start, mutant.end), []).append(mutant)
    ordered = sorted(ranges, key=lambda span: (span[0], -span[1]))

    def asks(mutant):
        return f"::veyrand_mutants::{'onAtRunTime' if mutant.at_run_time else 'on'}({mutant.number})"

    def render(start, end, at):
        """The text of a range, whose own mutants begin in the list at that place; and the place after."""
        out = []
        here = start
        while at < len(ordered) and ordered[at][0] < end:
            span = ordered[at]
            out.append(text[here : span[0]].decode())
            inner, at = render(span[0], span[1], at + 1)
            for mutant in ranges[span]:
                if mutant.kind == "call":
                    inner = f"({asks(mutant)} ? static_cast<void>(0) : static_cast<void>({inner}))"
                elif mutant.kind == "condition":
                    inner = f"({asks(mutant)} ? ({mutant.code}) : static_cast<bool>({inner}))"
                else:
                    inner = f"({asks(mutant)} ? ({mutant.code}) : ({inner}))"
            out.append(inner)
            here = span[1]
        out.append(text[here:end].decode())
        return "".join(out), at

    body, _ = render(0, len(text), 0)
    return f'#include "{header}"\n#line 1\n{body}'
