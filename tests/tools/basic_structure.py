"""A structural check of VB.NET and VBA source: blocks, strings, parentheses, declarations, and the statements that one
of the two languages does not have."""

import re

VBNET = "vbnet"
VBA = "vba"

_NAME = r"[A-Za-z_]\w*"
_DECLARATION = re.compile(rf"({_NAME})(?: ?\([^()]*\))? As (?:New )?[\w.]+ ?(?:\(\))?(?P<value> = ?.+)?$", re.I)
_NEXT_DECLARATION = re.compile(rf", (?={_NAME}(?: ?\([^()]*\))? As )", re.I)
_LOOP = re.compile(rf"For (?:Each )?({_NAME}) As [\w.]+ (?:=|In) ", re.I)
_CLASS = re.compile(rf"\b(?:Public |Private )?(?:Class|Module) (.*)$", re.I)
_PROCEDURE = re.compile(rf"(?:Public |Private |Shared )*(?:Sub|Function) {_NAME} ?\((?P<parameters>.*)\)$", re.I)
_PARAMETER = re.compile(rf"(?:ByVal |ByRef )?({_NAME}) As [\w.]+$", re.I)

# What opens and what closes a block; only VB.NET has those marked so.
_OPENERS = [
    ("Class", re.compile(r"(?:Public |Private )?Class\b", re.I), VBNET),
    ("Module", re.compile(r"(?:Public |Private )?Module\b", re.I), VBNET),
    ("Sub", re.compile(r"(?:Public |Private |Shared )*Sub\b", re.I), None),
    ("Function", re.compile(r"(?:Public |Private |Shared )*Function\b", re.I), None),
    ("If", re.compile(r"If\b.*\bThen$", re.I), None),
    ("Try", re.compile(r"Try$", re.I), VBNET),
    ("For", re.compile(r"For\b", re.I), None),
    ("With", re.compile(r"With\b", re.I), None),
    ("Do", re.compile(r"Do\b", re.I), None),
    ("Select", re.compile(r"Select Case\b", re.I), None),
]
_CLOSER = re.compile(r"(?:End (\w+)|(Next)\b.*|(Loop)\b.*)$", re.I)
_CLOSES = {"Next": "For", "Loop": "Do"}
# Parts of a block, which begin a scope of their own.
_PARTS = [("If", re.compile(r"(?:Else$|ElseIf\b.*\bThen$)", re.I)), ("Try", re.compile(r"(?:Catch\b|Finally$)", re.I)),
          ("Select", re.compile(r"Case\b", re.I))]

_LINE_END = {VBNET: re.compile("\r\n|[\r\n\x85\u2028\u2029]"), VBA: re.compile("\r\n|[\r\n]")}
_KEYWORDS = set("""and andalso byref byval call case catch class dim do each else elseif empty end erase exit explicit false finally
    for function get if imports in is isnot let like loop mod module new next not nothing on option or orelse private
    public redim return select set shared step sub then to true try until wend while with xor""".split())
_GLOBALS = {
    VBNET: {"inkwright", "system", "dispatchwrapper", "cint", "vblf", "ctype", "directcast", "trycast", "object",
            "math", "chrw"},
    VBA: {"inkwright", "getobject", "msgbox", "vblf", "cint", "abs", "chrw"},
}


# Letters of a procedure that VBA compiles to 64 KB, which is its limit: the code of a line is about as long as the line.
LONGEST_PROCEDURE = 64 * 1024


class _Scope:
    def __init__(self, block, line):
        self.block, self.line, self.names = block, line, set()


class _Checker:
    def __init__(self, dialect, known):
        self.dialect = dialect
        self.known = _GLOBALS[dialect] | _KEYWORDS | {name.lower() for name in known}
        self.scopes = [_Scope("", 0)]
        self.faults = []
        self.number = 0
        self.letters = 0  # of the present procedure
        self.has_procedures = False

    def fault(self, text, number=None):
        self.faults.append((number or self.number, text))

    def declare(self, name):
        """VBA has one scope a procedure; VB.NET has one a block, in which no name of the procedure may be hidden."""
        scopes = self.scopes
        if self.dialect == VBA:
            scopes = [scope for scope in scopes if scope.block in ("Sub", "Function")][-1:] or scopes[:1]
        if any(name.lower() in scope.names for scope in scopes):
            self.fault(f"{name} is declared twice")
        scopes[-1].names.add(name.lower())

    def is_known(self, name):
        return name.lower() in self.known or any(name.lower() in scope.names for scope in self.scopes)

    def line(self, raw):
        code, closed = without_text(raw)
        if not closed:
            self.fault("a string is not closed")
        if not code or re.match(r"(Imports|Option) ", code, re.I):
            return
        if re.search(r"%\d", code):
            self.fault("a marker is left over")
        for pair in ("()", "{}"):
            if code.count(pair[0]) != code.count(pair[1]):
                self.fault(f"{pair} do not match")
        if not self.block(code):
            self.statement(code)
        self.names(code)

    def block(self, code):
        if match := _CLOSER.match(code):
            self.close(next(filter(None, match.groups())))
            return True
        for kind, part in _PARTS:
            if part.match(code):
                if self.scopes[-1].block != kind:
                    self.fault(f"{code.split()[0]} stands outside {kind}")
                else:
                    self.scopes[-1].names.clear()
                if caught := re.match(rf"Catch ({_NAME}) As ", code, re.I):
                    self.declare(caught[1])
                return True
        for kind, opener, dialect in _OPENERS:
            if opener.match(code):
                if dialect not in (None, self.dialect):
                    self.fault(f"there is no {kind} in this language")
                self.open(kind, code)
                if loop := _LOOP.match(code):
                    self.declare(loop[1])
                return True
        return False

    def open(self, kind, code):
        self.scopes.append(_Scope(kind, self.number))
        if (match := _CLASS.match(code)) and kind in ("Class", "Module"):
            if re.fullmatch(_NAME, match[1]):
                self.known.add(match[1].lower())
            else:
                self.fault(f"{match[1]} is no name")
        if kind in ("Sub", "Function"):
            self.letters, self.has_procedures = 0, True
            match = _PROCEDURE.match(code)
            if not match:
                self.fault(f"{code} is no declaration of a procedure")
                return
            self.known.add(re.search(rf"({_NAME}) ?\(", code)[1].lower())
            for parameter in filter(None, (part.strip() for part in match["parameters"].split(","))):
                if found := _PARAMETER.match(parameter):
                    self.declare(found[1])
                else:
                    self.fault(f"{parameter} is no parameter")

    def close(self, word):
        kind = _CLOSES.get(word.capitalize(), word)
        if kind.lower() not in [scope.block.lower() for scope in self.scopes]:
            self.fault(f"{word} closes nothing")
            return
        while (scope := self.scopes.pop()).block.lower() != kind.lower():
            self.fault(f"{word} comes before the end of {scope.block} in line {scope.line}")
        if self.dialect == VBA and kind == "Sub" and self.letters > LONGEST_PROCEDURE:
            self.fault("the procedure is too long", scope.line)

    def statement(self, code):
        if re.match(r"Dim\b", code, re.I):
            self.declarations(code[4:])
        elif self.dialect == VBA and re.match(r"Private\b", code, re.I):
            if len(self.scopes) > 1 or self.has_procedures:
                self.fault("a declaration of the module stands ahead of its procedures")
            self.declarations(code[8:])
        elif re.match(r"Set\b", code, re.I):
            if self.dialect == VBNET:
                self.fault("there is no Set in this language")
            elif not re.match(rf"Set {_NAME}[\w.]* ?(?:\(.*?\))? += *[^ ]", code, re.I):
                self.fault("Set assigns nothing")
            elif re.search(r'= *(?:"|-?\d|(?:True|False)$)', code, re.I):
                self.fault("Set assigns a value that is no object")
        elif self.dialect == VBA:
            self.vba_statement(code)

    def declarations(self, code):
        for part in _NEXT_DECLARATION.split(code):
            match = _DECLARATION.match(part)
            if not match:
                self.fault("this is no declaration")
            else:
                self.declare(match[1])
                if self.dialect == VBA and match["value"]:
                    self.fault("a declaration has no value in this language")

    def vba_statement(self, code):
        if re.match(r"Return\b", code, re.I):
            self.fault("Return goes back from a GoSub, and there is none")
        flat = _flat(code)
        if re.fullmatch(r"[\w.]+(?:\(\)[\w.]+)* ?\(\)", flat) and _argument_count(code) != 1:
            self.fault("a call without a result has no parentheses, unless around a single argument")

    def names(self, code):
        """Every name is known that is neither a member nor a type."""
        if self.dialect == VBNET and re.search(r"\bNew DispatchWrapper\( *\)$", code, re.I):
            self.fault("a wrapper wraps nothing")
        if self.dialect == VBA and re.search(r"\bIsNot\b", code, re.I):
            self.fault("there is no IsNot in this language")
        bare = re.sub(r"\b(?:As (?:New )?|New )[\w.]+", "", code, flags=re.I)
        bare = _PROCEDURE.sub("", _CLASS.sub("", bare))
        for match in re.finditer(rf"(?<![\w.]){_NAME}", bare):
            if not self.is_known(match[0]):
                self.fault(f"{match[0]} is not declared")


def without_text(raw):
    """The code of a line, with no comment and nothing in its strings, and whether its strings are closed."""
    code, inside = "", False
    for character in raw:
        if character == '"':
            inside = not inside
            code += character
        elif character == "'" and not inside:
            break
        elif not inside:
            code += character
    return code.strip(), not inside


def _flat(code):
    """The code with nothing in its outermost parentheses."""
    flat, depth = "", 0
    for character in code:
        depth -= character == ")"
        flat += character if depth == 0 else ""
        depth += character == "("
    return flat


def _argument_count(call):
    """How many arguments stand in the parentheses that end a call."""
    depth, count = 0, 1
    for place in range(len(call) - 1, -1, -1):
        depth += (call[place] == ")") - (call[place] == "(")
        if depth == 0:
            return count if call[place + 1:-1].strip() else 0
        count += call[place] == "," and depth == 1
    return count


def statements(text, dialect):
    """(line, statement) of everything that stands in a file, continued lines in one."""
    begun, first = "", 0
    for number, raw in enumerate(_LINE_END[dialect].split(text.lstrip("\ufeff")), 1):
        first = first if begun else number
        if raw.endswith(" _"):
            begun += raw[:-1]
        else:
            yield first, begun + raw
            begun = ""


def check(text, dialect, known=()):
    """(line, fault) of everything that is wrong; `known` are names from the other files of the project."""
    procedures = re.findall(rf"^(?:Private )?Sub ({_NAME})", text, re.M) if dialect == VBA else []
    checker = _Checker(dialect, [*known, *procedures])
    for checker.number, statement in statements(text, dialect):
        checker.letters += len(statement) + 1
        checker.line(statement)
    for scope in checker.scopes[1:]:
        checker.fault(f"{scope.block} is never closed", scope.line)
    return checker.faults
