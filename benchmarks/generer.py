#!/usr/bin/env python3
"""Makes declarations to measure the validators with.

    generer.py [--format das|dac|ci] [--lignes N] [--fautes K] [--graine G] DOSSIER

writes DOSSIER/12345678_DAS_2024.TXT, DOSSIER/12345678_DAC_NOMINATIVE_2024T1.TXT or
DOSSIER/123456780000000001_CI.TXT with N lines that a real declaration could hold: right keys, accounts, numbers
and dates, accents and apostrophes. With --fautes K every K-th line has one fault, of each kind in turn. The same
arguments give the same bytes.
"""

import argparse
import os
import random
from decimal import ROUND_HALF_EVEN, ROUND_HALF_UP, Decimal

EMPLOYEUR = "12345678"
ANNEE = 2024

NOMS = ["BENALI", "HADJ MOHAMED", "AÏT ÉLIE", "CHERIF", "ZERROUKI", "LEFÈVRE", "OULD BRAHIM", "MEZIANE", "GÉRARD",
        "BOUZID", "TALEB", "SAÏDI", "KACI", "RAHMANI", "D'ARTOIS", "BELKACEM"]
PRENOMS = ["MOHAMED", "FATIMA ZOHRA", "KARIM", "NADIA", "ANDRÉ", "SOFIANE", "HÉLÈNE", "YACINE", "AMINA", "RACHID",
           "ABDELKADER", "LEÏLA", "OMAR", "SAMIRA", "RENÉ", "MALIKA"]
RUES = ["CITÉ DES 200 LOGEMENTS BT", "RUE DE L'INDÉPENDANCE N°", "AVENUE DU 1ER NOVEMBRE N°",
        "LOTISSEMENT LES ORANGERS VILLA", "HAI ES SALEM BATIMENT", "ROUTE NATIONALE LIEU DIT LES PINS"]
VILLES = ["ALGER CENTRE", "ORAN", "CONSTANTINE", "BÉJAÏA", "TIZI OUZOU", "SÉTIF", "BLIDA", "ANNABA"]
METIERS = ["MAÇON", "FERRAILLEUR", "CONDUCTEUR D'ENGINS", "PEINTRE EN BATIMENT", "CHEF DE CHANTIER", "MANŒUVRE",
           "ÉLECTRICIEN", "PLOMBIER CHAUFFAGISTE"]
DUREES = [("12", "M"), ("300", "J"), ("2000", "H"), ("11", "M"), ("275", "J"), ("1900", "H")]


def cle_ss(numero):
    """99 less the sum of the digits, those in odd places twice."""
    return 99 - 2 * sum(map(int, numero[0::2])) - sum(map(int, numero[1::2]))


def ccp(corps):
    somme = sum(int(c) * poids for c, poids in zip(reversed(corps), range(4, 12)))
    return corps + f"{somme:2d}"[-2:]


def rip(corps):
    """"007", 15 digits and the two that make the last 17 a multiple of 97."""
    return f"007{corps}{-int(corps) * 100 % 97:02d}"


def salaire(i):
    """Wage of line i in hundredths."""
    return 30_000_000 + i * 7_919 % 170_000_000


def personne(hasard, i):
    """The fields of a line in which nothing is wrong."""
    tire = hasard.getrandbits(60)

    def parmi(choix):
        nonlocal tire
        tire, rang = divmod(tire, len(choix))
        return choix[rang]

    naissance = 1942 + i % 64
    acte = f"{hasard.randrange(1, 100_000):05d}"
    while True:
        numero = f"{naissance % 100:02d}{acte[1:]}{hasard.randrange(10_000):04d}"
        cle = cle_ss(numero)
        if cle >= 0:
            break
    duree, unite = parmi(DUREES)
    sortie = tire % 8 == 0
    etranger = tire % 20 == 0
    nom = parmi(NOMS)
    centimes = salaire(i)
    fixe = hasard.randrange(10_000_000, 100_000_000)
    return [
        f"{numero}{cle:02d}", nom, parmi(PRENOMS), "MC"[i % 2],
        f"{i % 28 + 1:02d}/{i % 12 + 1:02d}/{naissance}",
        f"{parmi(VILLES)} WILAYA DE {parmi(VILLES)}", f"{parmi(RUES)} {i % 250} ESC {i % 7}", parmi(VILLES), f"{i % 58 + 1:02d}000", "N",
        "O" if etranger else "N",
        ccp(str(fixe)) if i % 3 else "", "" if i % 3 else rip(f"{hasard.randrange(10**15):015d}"),
        "007", f"{i % 900:05d}", parmi(METIERS),
        montant(centimes), duree, unite,
        "28/06/2024" if sortie else f"{i % 28 + 1:02d}/{i % 12 + 1:02d}/{1996 + i % 24}", "S" if sortie else "E",
        "MF"[i % 2], f"0{5 + i % 3}{fixe}", f"employe.{i}@entreprise.dz" if i % 4 else "",
        f"{fixe}{i % 10}", "012" if etranger else "004", parmi(PRENOMS), parmi(NOMS), parmi(PRENOMS),
        f"1{fixe}{acte}{i % 10000:04d}", acte,
    ]


def montant(centimes):
    return f"{centimes // 100},{centimes % 100:02d}"


def ligne_dac(champs, i):
    """The same person in a quarter."""
    jours = [("60", "J"), ("480", "H")][i % 2]
    sorti = champs[20] == "S"
    return (champs[:3] + [champs[4], champs[9], champs[30], f"{101 + i % 4738:04d}"] + champs[26:29] +
            [champs[10], champs[29], champs[11], champs[12], champs[15], champs[16], *jours,
             "28/03/2024" if sorti else champs[19], champs[20], champs[22], champs[23], champs[24], champs[25], champs[6]])


def indemnite(i):
    """Hundredths of three quarters of forty hours' wage."""
    return (10_000 + i * 7_919 % 50_000) * 30


def ligne_ci(champs, i):
    """The same person on a site that stands still for a week."""
    return champs[:3] + [champs[4], champs[15], champs[19] if champs[20] == "E" else "01/03/2019", "05/01/2024",
                         "12/01/2024", "40", montant(indemnite(i) // 30), montant(indemnite(i))]


def charge(total, taux):
    exacte = Decimal(total) / 100 * Decimal(taux)
    return str(exacte.quantize(Decimal("1.0000"), ROUND_HALF_EVEN).quantize(Decimal("1.00"), ROUND_HALF_UP))


def entete_ci(total, lignes):
    charges = ";".join(charge(total, taux) for taux in ("0.26", "0.1221", "0.00375"))
    return (f"{EMPLOYEUR}0000000001;05/01/2024;12/01/2024;{montant(total)};{lignes};{charges};40;"
            f"{rip('123456789012345')};AGENCE D'HYDRA;0660112233;")


class Format:
    """Name, mark, header, amount and line of a format; places of nationality and of the other account.

    A fault is the number of a field and what stands there instead: one of each kind that the validator lists.
    """

    def __init__(self, nom, marque, entete, montant, ligne, national, compte, fautes):
        self.nom, self.marque, self.entete, self.montant, self.ligne = nom, marque, entete, montant, ligne
        self.national, self.compte, self.fautes = national, compte, fautes


FORMATS = {
    "das": Format(
        f"{EMPLOYEUR}_DAS_{ANNEE}.TXT", "DAS KORVANDEL VER 3.0",
        lambda total, lignes: f"{EMPLOYEUR};{ANNEE};1;{montant(total)};{lignes};", salaire, lambda champs, i: champs,
        (11, 26), (12, 13),
        [(1, "000000000000"), (1, "8012345678AB"), (1, "801234567899"), (2, ""), (3, "ANDR3"), (4, "X"),
         (5, "31/02/1980"), (5, "01/01/2020"), (7, "RUE COURTE"), (10, "?"), (11, "X"), (12, "12345"),
         (17, "12A"), (18, "0"), (19, "A"), (20, "01/08/2024"), (21, "Z"), (22, "H"), (23, "021554433"),
         (24, "sans arobase"), (26, ""), (28, "M3RE"), (30, "0" * 18)]),
    "dac": Format(
        f"{EMPLOYEUR}_DAC_NOMINATIVE_{ANNEE}T1.TXT", "DAC NOMINATIVE KORVANDEL VER 1.0",
        lambda total, lignes: f"{EMPLOYEUR};{ANNEE}T1;1;{montant(total)};{lignes};{lignes};", salaire, ligne_dac,
        (11, 24), (13, 14),
        [(1, "000000000000"), (1, "8012345678AB"), (1, "801234567899"), (2, ""), (4, "31/02/1980"),
         (4, "01/01/2020"), (5, "?"), (6, "00000"), (7, "0000"), (8, ""), (11, "X"), (12, "0" * 18), (13, "12345"),
         (15, "AB"), (16, "12A"), (17, "91"), (18, "A"), (19, "01/08/2024"), (20, "Z"), (21, "021554433"),
         (22, "sans arobase"), (24, ""), (25, "RUE COURTE")]),
    "ci": Format(
        f"{EMPLOYEUR}0000000001_CI.TXT", "DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER 2.0", entete_ci, indemnite,
        ligne_ci, None, None,
        [(1, "8012345678AB"), (2, ""), (3, ""), (4, "31/02/1980"), (4, "15/13/1980"), (4, "01/01/2020"), (5, ""),
         (6, ""), (8, "13/01/2024"), (9, "0"), (10, "0"), (11, "1")]),
}


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--format", choices=FORMATS, default="das")
    options.add_argument("--lignes", type=int, default=1_000_000)
    options.add_argument("--fautes", type=int, default=0, help="a fault on every so many lines; 0 for none")
    options.add_argument("--graine", type=int, default=1)
    options.add_argument("dossier")
    choix = options.parse_args()

    format = FORMATS[choix.format]
    hasard = random.Random(choix.graine)
    total = sum(map(format.montant, range(choix.lignes)))
    os.makedirs(choix.dossier, exist_ok=True)
    chemin = os.path.join(choix.dossier, format.nom)
    with open(chemin + ".part", "w", encoding="cp1252", newline="", buffering=1 << 20) as fichier:
        fichier.write(f"{format.marque}\r\n{format.entete(total, choix.lignes)}\r\n")
        for i in range(choix.lignes):
            champs = format.ligne(personne(hasard, i), i)
            if choix.fautes and i % choix.fautes == choix.fautes - 1:
                champ, valeur = format.fautes[i // choix.fautes % len(format.fautes)]
                if format.national:  # a foreigner is spared some of the checks
                    champs[format.national[0] - 1], champs[format.national[1] - 1] = "N", "004"
                if format.compte and champ == format.compte[0]:
                    champs[format.compte[1] - 1] = ""
                champs[champ - 1] = valeur
            fichier.write(";".join(champs) + ";\r\n")
    os.replace(chemin + ".part", chemin)


if __name__ == "__main__":
    main()
