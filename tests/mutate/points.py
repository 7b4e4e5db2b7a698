"""Where a source can be broken, and how: read from clang's syntax tree."""

import dataclasses
import re

from clang.cindex import CursorKind, Index, TypeKind

neighbours = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&", "^": "&", "<<": ">>", ">>": "<<",
    "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "%=": "*=", "&=": "|=", "|=": "&=", "^=": "|=", "<<=": ">>=",
    ">>=": "<<=",
}  # fmt: skip
comparisons = ("<", "<=", ">", ">=", "==", "!=")

functions = (
    CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
    CursorKind.CONVERSION_FUNCTION, CursorKind.FUNCTION_TEMPLATE,
)  # fmt: skip
# What the compiler evaluates, or only looks at.
left_out = (
    CursorKind.STATIC_ASSERT, CursorKind.ENUM_DECL, CursorKind.PARM_DECL, CursorKind.DECL_REF_EXPR,
    CursorKind.CXX_UNARY_EXPR, CursorKind.TYPE_ALIAS_DECL, CursorKind.TYPEDEF_DECL,
    CursorKind.TEMPLATE_NON_TYPE_PARAMETER, CursorKind.TEMPLATE_TYPE_PARAMETER, CursorKind.TYPE_ALIAS_TEMPLATE_DECL,
)  # fmt: skip
deleted = (
    CursorKind.CALL_EXPR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR, CursorKind.BREAK_STMT, CursorKind.CONTINUE_STMT,
)  # fmt: skip
integer = re.compile(r"(0[xX][\dA-Fa-f']+|[\d']+)[uUlLzZ]*")
fraction = re.compile(r"[\d'.]+([eE][-+]?\d+)?[fFlL]?")
character = re.compile(r"(u8|u|U|L)?'(\\.[^']*|[^'\\])'")
string = re.compile(r'(u8|u|U|L)?"((?:\\.|[^"\\])*)"')


@dataclasses.dataclass
class Point:
    """A piece of a source, from its first byte to behind its last, with what can stand in its place."""

    start: int
    end: int
    is_statement: bool = False  # whose only alternative is to be absent
    is_bool: bool = False  # where any type will do that becomes a bool
    is_constexpr: bool = False  # which the compiler may evaluate too
    alternatives: list = dataclasses.field(default_factory=list)  # of pairs: what it is called, its text


class Finder:
    """Collects the points of one source."""

    def __init__(self, source):
        self.source = source
        self.points = {}
        self.is_constexpr = False

    def text(self, start, end):
        return self.source[start:end].decode()

    def of(self, cursor):
        """The text of a piece of the tree."""
        return self.text(cursor.extent.start.offset, cursor.extent.end.offset)

    def add(self, start, end, alternative, is_bool=False):
        """Another text for a piece; None when the statement is to be absent."""
        key = start, end, alternative is None
        point = self.points.setdefault(key, Point(start, end, alternative is None, is_constexpr=self.is_constexpr))
        point.is_bool = point.is_bool or is_bool
        told = short(self.text(start, end))
        change = f"{told} -> {'nothing' if alternative is None else short(alternative)}"
        if change not in (known for known, _ in point.alternatives):
            point.alternatives.append((change, alternative))

    def replace(self, cursor, alternative, is_bool=False):
        self.add(cursor.extent.start.offset, cursor.extent.end.offset, alternative, is_bool)

    def walk(self, cursor):
        """Takes a piece of the tree, and what it consists of."""
        kind = cursor.kind
        if kind in left_out:
            return
        children = list(cursor.get_children())
        was_constexpr = self.is_constexpr
        if kind in functions or kind in (CursorKind.VAR_DECL, CursorKind.FIELD_DECL):
            children = self.behind_name(cursor, children)
        elif kind in (CursorKind.IF_STMT, CursorKind.WHILE_STMT, CursorKind.DO_STMT, CursorKind.FOR_STMT):
            children = self.branch(cursor, children)
        elif kind == CursorKind.CASE_STMT:
            children = children[1:]
        elif kind == CursorKind.CONDITIONAL_OPERATOR:
            self.condition(children[0], ("true", "false"))
        elif kind == CursorKind.RETURN_STMT and children:
            self.returned(children[0])
        elif kind == CursorKind.MEMBER_REF_EXPR:
            children = [child for child in children if child.kind != CursorKind.INTEGER_LITERAL]
        else:
            self.expression(cursor, children)
        for child in children:
            self.walk(child)
        self.statements(cursor, children)
        self.is_constexpr = was_constexpr

    def behind_name(self, cursor, children):
        """The body of a function, or the value that a variable begins with."""
        name = cursor.location.offset
        specifiers = self.text(cursor.extent.start.offset, name)
        if kind_is_variable := cursor.kind in (CursorKind.VAR_DECL, CursorKind.FIELD_DECL):
            if re.search(r"\b(constexpr|constinit)\b", specifiers):
                return []
            begin = re.compile(rb"[={(:]").search(self.source, name, cursor.extent.end.offset)
            name = begin.end() if begin else cursor.extent.end.offset
        if "consteval" in specifiers:
            return []
        if "constexpr" in specifiers or cursor.kind == CursorKind.FIELD_DECL:
            self.is_constexpr = True
        return [
            child for child in children
            if child.extent.start.offset >= name and child.kind != CursorKind.PARM_DECL
            and (kind_is_variable or cursor.kind == CursorKind.CONSTRUCTOR or child.kind == CursorKind.COMPOUND_STMT
                 or child.kind == CursorKind.CXX_TRY_STMT)
        ]  # fmt: skip

    def branch(self, cursor, children):
        """Takes the condition of a statement that has one; what is left to be walked."""
        kind = cursor.kind
        condition = None
        if kind == CursorKind.DO_STMT:
            condition = children[1]
        elif kind == CursorKind.FOR_STMT:
            condition = self.middle_of_for(cursor, children)
        else:
            branches = 1
            if kind == CursorKind.IF_STMT and len(children) > 2:
                between = self.text(children[-2].extent.end.offset, children[-1].extent.start.offset)
                branches = 2 if re.search(r"\belse\b", between) else 1
            at = len(children) - 1 - branches
            condition = children[at]
            if re.match(r"if\s+constexpr", self.text(cursor.extent.start.offset, condition.extent.start.offset)):
                return children[at + 1 :]
            if at > 0 and children[at - 1].extent.end.offset >= condition.extent.end.offset:
                # It declares a variable, which the condition is the value of.
                return children[:at] + children[at + 1 :]
        if condition is not None:
            self.condition(condition, ("true", "false") if kind == CursorKind.IF_STMT else ("false",))
        return children

    def middle_of_for(self, cursor, children):
        """The condition of a loop, which stands between the semicolons."""
        depth, semicolons = 0, []
        for token in cursor.get_tokens():
            depth += {"(": 1, "[": 1, "{": 1, ")": -1, "]": -1, "}": -1}.get(token.spelling, 0)
            if token.spelling == ";" and depth == 1:
                semicolons.append(token.extent.start.offset)
            if depth == 0 and token.spelling == ")":
                break
        if len(semicolons) != 2:
            return None
        found = (child for child in children if semicolons[0] < child.extent.start.offset < semicolons[1])
        return next(found, None)

    def condition(self, cursor, values):
        if self.of(cursor) not in ("true", "false"):
            for value in values:
                self.replace(cursor, value, is_bool=True)

    def returned(self, cursor):
        if cursor.type.get_canonical().kind == TypeKind.BOOL and self.of(cursor) not in ("true", "false"):
            self.replace(cursor, f"!({self.of(cursor)})", is_bool=True)

    def statements(self, cursor, children):
        """Those of a block, or of a branch or loop without one, that can be absent."""
        if cursor.kind in (CursorKind.IF_STMT, CursorKind.FOR_STMT, CursorKind.WHILE_STMT,
                           CursorKind.CXX_FOR_RANGE_STMT):  # fmt: skip
            ends = [child.extent.end.offset for child in children]
            children = [child for child, end in zip(children, ends) if self.is_branch(cursor, child, end)]
        elif cursor.kind not in (CursorKind.COMPOUND_STMT, CursorKind.CASE_STMT, CursorKind.DEFAULT_STMT):
            return
        for child in children:
            start, end = child.extent.start.offset, child.extent.end.offset
            semicolon = re.compile(rb"\s*;").match(self.source, end)
            if semicolon and self.can_be_absent(child):
                self.add(start, semicolon.end(), None)

    def is_branch(self, cursor, child, end):
        """Whether a piece of a statement is what it does, and not the head of it."""
        start = cursor.extent.start.offset
        depth = 0
        # The head ends where its bracket is closed.
        for token in cursor.get_tokens():
            depth += {"(": 1, ")": -1}.get(token.spelling, 0)
            if token.spelling == ")" and depth == 0:
                start = token.extent.start.offset
                break
        return child.extent.start.offset > start and end <= cursor.extent.end.offset

    def can_be_absent(self, cursor):
        while cursor.kind == CursorKind.UNEXPOSED_EXPR:
            cursor = next(cursor.get_children(), cursor)
            if cursor.kind == CursorKind.UNEXPOSED_EXPR and not list(cursor.get_children()):
                return False
        if cursor.kind in deleted:
            return True
        if cursor.kind == CursorKind.RETURN_STMT:
            return not list(cursor.get_children())
        if cursor.kind == CursorKind.UNARY_OPERATOR:
            return bool(re.match(r"\+\+|--|.*(\+\+|--)$", self.of(cursor), re.S))
        if cursor.kind != CursorKind.BINARY_OPERATOR:
            return False
        return self.operator(cursor, list(cursor.get_children()))[0] == "="

    def operator(self, cursor, children):
        """The operator between two operands, with its place; an empty one when there is none to be found."""
        if len(children) < 2:
            return "", 0, 0
        if cursor.kind == CursorKind.CALL_EXPR:
            if len(children) != 3:
                return "", 0, 0
            start, end = children[1].extent.start.offset, children[1].extent.end.offset
        else:
            start, end = children[0].extent.end.offset, children[1].extent.start.offset
        found = re.fullmatch(r"\s*([-+*/%&|^<>=!]+)\s*", self.text(start, end))
        return (found[1], start + found.start(1), start + found.end(1)) if found else ("", 0, 0)

    def expression(self, cursor, children):
        """What an operator or a constant can be taken for."""
        kind = cursor.kind
        if kind in (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR, CursorKind.CALL_EXPR):
            self.two_operands(cursor, children)
        elif kind == CursorKind.UNARY_OPERATOR:
            self.one_operand(cursor, children[0])
        elif kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            self.replace(cursor, {"true": "false", "false": "true"}.get(self.of(cursor), "false"))
        else:
            self.constant(cursor)

    def two_operands(self, cursor, children):
        operator, start, end = self.operator(cursor, children)
        if operator not in neighbours or (cursor.kind == CursorKind.CALL_EXPR and operator not in comparisons):
            return
        kinds = [child.type.get_canonical().kind for child in children]
        if operator == "-" and kinds == [TypeKind.POINTER] * 2:
            return
        left = self.text(cursor.extent.start.offset, start).rstrip()
        right = self.text(end, cursor.extent.end.offset).lstrip()
        if not left or not right:
            # A part of what the compiler made of a comparison, which is met as a whole too.
            return
        # Both as they are, whatever binds closer than the operator put between them.
        alternative = f"({left}) {neighbours[operator]} ({right})"
        if operator not in ("&&", "||"):
            alternative = f"{left} {neighbours[operator]} {right}"
        self.replace(cursor, alternative)

    def one_operand(self, cursor, operand):
        written = self.of(cursor)
        if written.startswith(("++", "--")):
            self.replace(cursor, {"++": "--", "--": "++"}[written[:2]] + written[2:])
        elif written.endswith(("++", "--")):
            self.replace(cursor, written[:-2] + {"++": "--", "--": "++"}[written[-2:]])
        elif written.startswith("!") and not written.startswith("!="):
            self.replace(cursor, f"static_cast<bool>({self.of(operand)})", is_bool=True)
        elif written.startswith("-"):
            self.replace(cursor, self.of(operand))

    def constant(self, cursor):
        written = self.of(cursor)
        if cursor.kind == CursorKind.INTEGER_LITERAL and integer.fullmatch(written):
            self.replace(cursor, f"{written} + 1")
            if written.strip("uUlLzZ") != "0":
                self.replace(cursor, f"{written} - 1")
        elif cursor.kind == CursorKind.FLOATING_LITERAL and fraction.fullmatch(written):
            self.replace(cursor, f"{written} + 1")
        elif cursor.kind == CursorKind.CHARACTER_LITERAL and character.fullmatch(written):
            self.replace(cursor, f"decltype({written})({written} + 1)")
        elif cursor.kind == CursorKind.STRING_LITERAL:
            self.string(cursor, written)

    def string(self, cursor, written):
        """A string of the same length, whose last letter or digit is another one; a character for an empty one."""
        found = string.match(written)
        if not found or written.startswith("R"):
            return
        if written[found.end() - 2 : found.end()] == '""' and found[2] == "":
            self.replace(cursor, written[: found.end() - 1] + 'x"' + written[found.end() :])
            return
        plain = re.compile(r"(?<![\\%])[A-Za-z0-9 .,;:|]")
        places = [place.start() for place in plain.finditer(written, found.start(2), found.end(2))]
        if places and "\\x" not in written:
            at = places[-1]
            other = "x" if written[at] != "x" else "y"
            self.replace(cursor, written[:at] + other + written[at + 1 :])


def short(text):
    """A text as it is told: on one line."""
    return re.sub(r"\s+", " ", text).strip()


def points_of_unit(unit, arguments, wanted):
    """The points of the files among those wanted that a unit consists of: a list for each name, in their order."""
    tree = Index.create().parse(str(unit), args=arguments)
    wrong = [str(found) for found in tree.diagnostics if found.severity >= 3]
    if wrong:
        raise SystemExit("\n".join([f"clang cannot read {unit}:", *wrong]))
    finders = {}

    def top(cursor):
        """Takes what stands in a namespace or a class of a file that is wanted."""
        for child in cursor.get_children():
            if child.location.file is None or child.location.file.name not in wanted:
                continue
            name = child.location.file.name
            if name not in finders:
                with open(name, "rb") as file:
                    finders[name] = Finder(file.read())
            if child.kind in (CursorKind.NAMESPACE, CursorKind.STRUCT_DECL, CursorKind.CLASS_DECL,
                              CursorKind.CLASS_TEMPLATE, CursorKind.UNION_DECL):  # fmt: skip
                top(child)
            else:
                finders[name].walk(child)

    top(tree.cursor)
    return {
        name: sorted(finder.points.values(), key=lambda point: (point.start, -point.end))
        for name, finder in finders.items()
    }
