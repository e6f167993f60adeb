"""Reads C++ sources for the checks: names of included headers, declarations and definitions, each with its line."""
import re

# Takes the place of each backslash-newline, which may separate any two characters outside raw strings.
SPLICE = '\x01'
LITERAL = re.compile(r'''
    (?P<comment> /\x01*/[^\n]* | /\x01*\*.*?\*\x01*/ )
  | (?P<raw> (?<!\w)(?:u8|[uUL])?R\x01*"(?P<end>[^()\\\s]{0,16})\(.*?\)(?P=end)" )
  | "(?:\\\x01*[^\n]|[^"\\\n])*"
  | '(?:\\\x01*[^\n]|[^'\\\n])*'
  | (?<!\w)\d[\w.]*(?:'[\w.]+)+       # 1'000'000
''', re.DOTALL | re.VERBOSE)
INCLUDE = re.compile(r'\s*(?:(?:#|%:)\s*(?:include_next|include|import)\b|(?:export\s+)?import\s*(?=[<"]))\s*(.*)')
DIRECTIVE = re.compile(r'^[^\S\n]*(?:#|%:).*$', re.MULTILINE)
NAMESPACE = re.compile(r'\s*(?:(?:inline\s+)?namespace\b[^=()]*|extern\s*" *"\s*)')
EXTERN = re.compile(r'\bextern\b(?!\s+template\b)[^;{}]*(?=;)')

# What may occur before or after the type, the name and the parameters: attributes, macros, the language.
DECORATION = re.compile(r'\[\[.*?\]\]|\b(?:alignas|__attribute__|noexcept|throw|requires)\s*\((?:[^()]|\([^()]*\))*\)'
                        r'|^\s*(?:[A-Z][A-Z0-9_]+\s*\([^()]*\)\s*)+(?=\S)|(?<=extern)\s*" *"', re.DOTALL)
FUNCTION = re.compile(r'(\s*[\w:][\w:\s*&]*[\s*&])(\w+)\s*\((.*)\)[\w\s&:*>-]*', re.DOTALL)
VARIABLE = re.compile(r'\s*[\w:][\w:\s*&]*[\s*&](\w+)\s*(?:\[.*?\]\s*)*(?:[=(].*)?', re.DOTALL)
# Tells the function f(Type) from the variable v(value): types start with an upper-case letter, constants don't.
PARAMETER = re.compile(r'''\s* (?: \.\.\. | (?!(?!std::)(?:\w+::)+\w+\s*$)
    (?: (?:const|volatile|struct|class|enum|union|typename) \s+ )*
    (?: (?:\w+::)*[A-Z]\w* | (?:::)?std::[\w:]+ | \w+_t | q\w*int\d* | qreal | u(?:int|char|short|long)
      | void | bool | char | short | int | long | signed | unsigned | float | double | auto ) \b
    (?: \s*[&*=[] | \s+[\w(] | \s*$ ) )''', re.VERBOSE)


class Source:
    """The text of a C++ file. An offset means the same place in each of its forms."""

    def __init__(self, text):
        self.text = re.sub(r'\\[ \t]*\n', SPLICE, text)
        self.code = LITERAL.sub(without_comment, self.text)

    def line_of(self, offset):
        return 1 + sum(self.text.count(end, 0, offset) for end in ('\n', SPLICE))

    def includes(self):
        """The line of each include, and what follows the word: "name", <name>, or a macro."""
        offset = 0
        for line in self.code.split('\n'):
            include = INCLUDE.match(line.replace(SPLICE, ''))
            if include:
                yield self.line_of(offset + len(line) - len(line.lstrip(' \t\v\f' + SPLICE))), include[1].strip()
            offset += len(line) + 1

    def namespaces(self):
        return {name for found in re.findall(r'\bnamespace\s+([\w:]+)', self.code) for name in found.split('::')}

    def declarations(self, namespaces):
        """The line of each signature that is declared at namespace scope or extern, and the set of those defined."""
        code = LITERAL.sub(without_text, self.code)
        code = DIRECTIVE.sub(lambda found: ' ' * len(found[0]), code).replace(SPLICE, ' ')
        declared, defined = {}, set()
        inner = ((found.start(), found[0], False) for found in EXTERN.finditer(code))
        for offset, text, has_body in (*statements(code), *inner):
            sign = signature(text, namespaces)
            is_extern = EXTERN.match(text.lstrip() + ';') and '=' not in text
            if sign and not has_body and (sign[1] is not None or is_extern):
                declared.setdefault(sign, self.line_of(offset + len(text) - len(text.lstrip())))
            elif sign:
                defined.add(sign)
        return declared, defined


def without_comment(found):
    """Spaces instead of a comment or a raw string; an include may need any other text."""
    if found['raw']:
        return '""' + ' ' * (len(found[0]) - 2)
    return ' ' * len(found[0]) if found['comment'] else found[0]


def without_text(found):
    return found[0][0] + ' ' * (len(found[0]) - 2) + found[0][-1]


def statements(code):
    """Each statement at namespace scope: its offset, its text, and whether a body in braces follows."""
    start, parentheses, braces = 0, 0, 0
    for found in re.finditer('[(){};]', code):
        sign, text = found[0], code[start:found.start()]
        if braces:
            braces += {'{': 1, '}': -1}.get(sign, 0)
            start = start if braces or parentheses else found.end()
        elif sign in '()':
            parentheses = max(parentheses + (1 if sign == '(' else -1), 0)
        elif sign == '{' and not NAMESPACE.fullmatch(text):
            braces = 1
            if not parentheses:
                yield start, text, True
        elif not parentheses:
            if sign == ';':
                yield start, text, False
            start = found.end()


def without_nested(text, brackets, substitute):
    """The text with each bracketed part replaced, from the inside out."""
    while (shorter := re.sub(brackets, substitute, text)) != text:
        text = shorter
    return text


def signature(statement, namespaces):
    """The name that a statement introduces, with the number of parameters for a function, or None for a variable."""
    text = DECORATION.sub(' ', statement)
    text = re.sub(r'\boperator\s*(\(\)|[^\w\s(]+)', lambda sign: 'operator_x' + sign[1].encode().hex(), text)
    text = without_nested(text, r'<[^<>]*>|\btemplate\b', ' ')
    text = re.sub(r'\b(\w+)::', lambda name: '' if name[1] in namespaces else name[0], text)
    function = FUNCTION.fullmatch(text)
    if function and not re.search(r'\b(?:typedef|using|friend|explicit|return)\b', function[1]):
        name = re.sub(r'^operator_x(\w+)', lambda sign: 'operator' + bytes.fromhex(sign[1]).decode(), function[2])
        parameters = without_nested(function[3], r'\([^()]*\)|\{[^{}]*\}', '\x02').split(',')
        if parameters[0].strip() in ('', 'void'):
            return name, 0
        if re.search(r'\bvoid\s*$', function[1]) or PARAMETER.match(parameters[0].replace('\x02', '(')):
            return name, len(parameters)
    variable = VARIABLE.fullmatch(text)
    return (variable[1], None) if variable else None
