"""Draws one-token faults over the sources. The same seed and the same sources give the same draws."""

import hashlib
import re
from dataclasses import dataclass
from decimal import Decimal
from fnmatch import fnmatch
from pathlib import Path

JETON = re.compile(r"""
    (?P<rien>\s+ | //[^\n]* | /\*.*?\*/ | ^[ \t]*\#(?:\\\n|[^\n])*)
  | (?P<texte>(?:u8|[uUL])?R"(?P<marque>[^()\\\s]*)\(.*?\)(?P=marque)"\w* | (?:u8|[uUL])?"(?:\\.|[^"\\\n])*"\w*)
  | (?P<car>(?:u8|[uUL])?'(?:\\.|[^'\\\n])*')
  | (?P<nom>[A-Za-z_]\w*)
  | (?P<nombre>\.?\d(?:'?[\w.])*)
  | (?P<signe><=>|<<=|>>=|\.\.\.|::|->|\+\+|--|&&|\|\||[-+*/%&|^=!<>]=|<<|>>|.)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)
ENTIER = re.compile(r"(0[xX][\da-fA-F']+|[\d']*\.?[\d']+)([a-zA-Z]*)$")

COMPARAISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
OPERATIONS = {"+": "-", "-": "+", "&&": "||", "||": "&&"}
AFFECTATIONS = {"+=": "-=", "-=": "+=", "++": "--", "--": "++"}
LOGIQUES = {"true": "false", "false": "true"}
FERMANTS = {"(": ")", "[": "]", "{": "}"}
TYPES = {"class", "struct", "union", "enum", "namespace"}
CONDITIONS = {"if", "for", "while", "switch", "constexpr"}
# What only the compiler reads, or what is told of the code rather than done by it.
ASSERTIONS = {"assert", "static_assert", "Q_ASSERT", "Q_ASSERT_X", "Q_UNUSED", "Q_ASSUME", "noexcept", "decltype",
              "sizeof", "alignas"}
# Their first word is no function, or the order of their arguments says nothing, or does not compile otherwise.
SANS_ECHANGE = CONDITIONS | ASSERTIONS | {"return", "catch", "min", "max", "qMin", "qMax", "swap", "connect",
                                          "connecter", "static_cast"}
PAS_UN_APPEL = CONDITIONS | ASSERTIONS | {"return", "throw", "delete", "new", "case", "default", "using", "else",
                                          "do", "break", "continue", "goto", "operator", "try", "catch"}


@dataclass(frozen=True)
class Jeton:
    genre: str
    texte: str
    debut: int
    fin: int


@dataclass(frozen=True)
class Faute:
    fichier: str
    ligne: int
    genre: str
    avant: str  # the whole lines, blanks drawn together
    apres: str
    rang: int  # among the faults of the file that read the same
    debut: int
    fin: int
    remplacement: str

    @property
    def cle(self):
        return (self.fichier, self.genre, self.avant, self.apres, self.rang)

    def appliquer(self, source):
        return source[:self.debut] + self.remplacement + source[self.fin:]


def condense(*textes):
    return hashlib.sha256("\0".join(map(str, textes)).encode()).hexdigest()


class Lecteur:
    """Finds the places of one file where a fault can stand."""

    def __init__(self, source):
        self.source = source
        self.jetons = [Jeton(m.lastgroup if m.lastgroup != "marque" else "texte", m.group(), m.start(), m.end())
                       for m in JETON.finditer(source) if m.lastgroup != "rien"]
        self.partenaire, self.dans_corps, self.ignores = {}, [], set()
        self._structurer()

    def texte(self, i):
        return self.jetons[i].texte if 0 <= i < len(self.jetons) else ""

    def _structurer(self):
        ouverts, tete = [], []
        for i, jeton in enumerate(self.jetons):
            # A parenthesis belongs to what is around it: only braces open the body of a function.
            accolades = [corps for _, corps in ouverts if corps is not None]
            self.dans_corps.append(bool(accolades) and accolades[-1])
            if jeton.texte in FERMANTS:
                corps = None
                if jeton.texte == "{" and not tete:
                    corps = self.dans_corps[i]
                elif jeton.texte == "{":
                    corps = "(" in tete or not TYPES & {*tete}
                ouverts.append((i, corps))
            elif jeton.texte in FERMANTS.values() and ouverts:
                debut, _ = ouverts.pop()
                self.partenaire[debut], self.partenaire[i] = i, debut
                if self.texte(debut - 1) in ASSERTIONS:
                    self.ignores.update(range(debut, i))
            tete = [] if jeton.texte in ("{", "}", ";") else tete + [jeton.texte]

    def _espace(self, i):
        """Blanks on both sides, as the house's format sets a binary operator and never a template's bracket."""
        jeton = self.jetons[i]
        return self.source[jeton.debut - 1].isspace() and self.source[jeton.fin:jeton.fin + 1].isspace()

    def _parmi_des_textes(self, i):
        """Whether the statement joins texts, which only "+" can."""
        for pas in (-1, 1):
            j = i
            while 0 <= j < len(self.jetons) and self.texte(j) not in (";", "{", "}"):
                if self.jetons[j].genre == "texte":
                    return True
                j += pas
        return False

    def _nombre(self, i):
        texte = self.texte(i)
        lu = ENTIER.match(texte)
        virtuelle = self.texte(i - 1) == "=" and self.texte(i - 2) in (")", "const", "override", "noexcept")
        if not lu or virtuelle:
            return None
        chiffres, suffixe = lu.groups()
        pas = 1 if int(condense(self._lignes(self.jetons[i])[0], i and self.texte(i - 1)), 16) % 2 else -1
        if chiffres[:2].lower() == "0x":
            return hex(int(chiffres.replace("'", ""), 16) + pas) + suffixe
        if "." in chiffres or suffixe in ("f", "F"):
            return str(Decimal(chiffres.replace("'", "")) + pas) + suffixe
        return str(int(chiffres.replace("'", "")) + pas) + suffixe

    def _fin_appel(self, i):
        """The ";" behind a statement that is a call and begins here, or None."""
        avant = self.texte(i - 1)
        apres_condition = avant == ")" and self.texte(self.partenaire.get(i - 1, 0) - 1) in CONDITIONS
        if not self.dans_corps[i] or not (avant in (";", "{", "}", "else", "do") or apres_condition):
            return None
        if self.texte(i) in ("emit", "Q_EMIT"):
            i += 1
        while self.jetons[i].genre == "nom" and self.texte(i) not in PAS_UN_APPEL:
            i += 1
            while self.texte(i) in ("(", "["):
                i = self.partenaire.get(i, i) + 1
            if self.texte(i) == ";":
                return i if self.texte(i - 1) == ")" else None
            if self.texte(i) not in ("::", ".", "->") or i + 1 >= len(self.jetons):
                return None
            i += 1
        return None

    def _arguments(self, i):
        """The arguments of the call whose name stands here, each as (first token, last token)."""
        ouvrant = i + 1
        if not self.dans_corps[i] or self.texte(ouvrant) != "(" or self.texte(i) in SANS_ECHANGE:
            return []
        arguments, debut, j, fin = [], ouvrant + 1, ouvrant + 1, self.partenaire.get(ouvrant, 0)
        while j < fin:
            if self.texte(j) in FERMANTS:
                j = self.partenaire.get(j, fin)
            elif self.texte(j) == ",":
                arguments.append((debut, j - 1))
                debut = j + 1
            j += 1
        return arguments + [(debut, fin - 1)]

    def _echange(self, i):
        arguments = self._arguments(i)
        paires = []
        for (a, b), (c, d) in zip(arguments, arguments[1:]):
            un, autre = (self.source[self.jetons[p].debut:self.jetons[q].fin] for p, q in ((a, b), (c, d)))
            semblables = self.jetons[a].genre == self.jetons[c].genre != "signe" and all(
                (marque in un) == (marque in autre) for marque in ("dialogue", "this", "::"))
            if un != autre and semblables and "{" not in un + autre:
                milieu = self.source[self.jetons[b].fin:self.jetons[c].debut]
                paires.append((self.jetons[a].debut, self.jetons[d].fin, autre + milieu + un))
        return paires[int(condense(self.texte(i), len(paires)), 16) % len(paires)] if paires else None

    def _lignes(self, jeton, remplacement=None):
        """The whole lines around a place, before and after."""
        debut = self.source.rfind("\n", 0, jeton.debut) + 1
        fin = self.source.find("\n", jeton.fin)
        fin = len(self.source) if fin < 0 else fin
        apres = self.source[debut:jeton.debut] + (remplacement or "") + self.source[jeton.fin:fin]
        return tuple(" ".join(texte.split()) for texte in (self.source[debut:fin], apres))

    def places(self):
        """All (kind, first character, end, replacement) of the file, one of each kind a token."""
        for i, jeton in enumerate(self.jetons):
            texte, ici = jeton.texte, (jeton.debut, jeton.fin)
            if i in self.ignores or self.texte(i - 1) == "operator":
                continue
            binaire = jeton.genre == "signe" and self._espace(i)
            if binaire and texte in COMPARAISONS:
                yield "comparison", *ici, COMPARAISONS[texte]
            elif texte in LOGIQUES:
                yield "constant", *ici, LOGIQUES[texte]
            elif jeton.genre == "nombre" and (autre := self._nombre(i)):
                yield "constant", *ici, autre
            elif binaire and texte in OPERATIONS or texte in AFFECTATIONS:
                if texte[0] != "+" or texte == "++" or not self._parmi_des_textes(i):
                    yield "operator", *ici, (OPERATIONS | AFFECTATIONS)[texte]
            elif texte in ("!", "-") and not binaire:
                yield "operator", *ici, ""
            elif jeton.genre == "nom":
                if fin := self._fin_appel(i):
                    yield "dropped statement", jeton.debut, self.jetons[fin].fin, "{}"
                if echange := self._echange(i):
                    yield "exchanged arguments", *echange

    def fautes(self, fichier):
        rangs = {}
        for genre, debut, fin, remplacement in self.places():
            avant, apres = self._lignes(Jeton("", "", debut, fin), remplacement)
            rang = rangs[genre, avant, apres] = rangs.get((genre, avant, apres), -1) + 1
            yield Faute(fichier, self.source.count("\n", 0, debut) + 1, genre, avant, apres, rang, debut, fin,
                        remplacement)


def tirages(racine, graine, seulement):
    """All faults in the order of their draw, one a line of the sources at most.

    The order comes from a digest of each fault's own text, so a change elsewhere in the sources leaves it."""
    fautes = []
    for chemin in sorted(Path(racine, "src").rglob("*")):
        nom = chemin.relative_to(racine).as_posix()
        if chemin.suffix not in (".cpp", ".h") or nom.startswith("src/demo/"):
            continue
        if not seulement or any(fnmatch(nom, motif) for motif in seulement):
            fautes += Lecteur(chemin.read_text(encoding="utf-8")).fautes(nom)
    prises = set()
    for faute in sorted(fautes, key=lambda f: condense(graine, *f.cle)):
        if (faute.fichier, faute.ligne) not in prises:
            prises.add((faute.fichier, faute.ligne))
            yield faute
