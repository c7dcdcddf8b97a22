#!/usr/bin/env python3
"""Makes annual declarations of wages to measure the validator with.

    generer_das.py [--lignes N] [--fautes K] [--graine G] DOSSIER

writes DOSSIER/12345678_DAS_2024.TXT with N lines that a real declaration could hold: right keys, accounts,
numbers and dates, accents and apostrophes. With --fautes K every K-th line has one fault, of each kind in
turn. The same arguments give the same bytes.
"""

import argparse
import os
import random

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
        f"{centimes // 100},{centimes % 100:02d}", duree, unite,
        "28/06/2024" if sortie else f"{i % 28 + 1:02d}/{i % 12 + 1:02d}/{1996 + i % 24}", "S" if sortie else "E",
        "MF"[i % 2], f"0{5 + i % 3}{fixe}", f"employe.{i}@entreprise.dz" if i % 4 else "",
        f"{fixe}{i % 10}", "012" if etranger else "004", parmi(PRENOMS), parmi(NOMS), parmi(PRENOMS),
        f"1{fixe}{acte}{i % 10000:04d}", acte,
    ]


# Number of the field and what stands there instead: one fault that the validator lists, of each kind.
FAUTES = [(1, "000000000000"), (1, "8012345678AB"), (1, "801234567899"), (2, ""), (3, "ANDR3"), (4, "X"),
          (5, "31/02/1980"), (5, "01/01/2020"), (7, "RUE COURTE"), (10, "?"), (11, "X"), (12, "12345"),
          (17, "12A"), (18, "0"), (19, "A"), (20, "01/08/2024"), (21, "Z"), (22, "H"), (23, "021554433"),
          (24, "sans arobase"), (26, ""), (28, "M3RE"), (30, "0" * 18)]


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--lignes", type=int, default=1_000_000)
    options.add_argument("--fautes", type=int, default=0, help="a fault on every so many lines; 0 for none")
    options.add_argument("--graine", type=int, default=1)
    options.add_argument("dossier")
    choix = options.parse_args()

    hasard = random.Random(choix.graine)
    total = sum(map(salaire, range(choix.lignes)))
    os.makedirs(choix.dossier, exist_ok=True)
    chemin = os.path.join(choix.dossier, f"{EMPLOYEUR}_DAS_{ANNEE}.TXT")
    with open(chemin + ".part", "w", encoding="cp1252", newline="", buffering=1 << 20) as fichier:
        fichier.write("DAS KORVANDEL VER 3.0\r\n")
        fichier.write(f"{EMPLOYEUR};{ANNEE};1;{total // 100},{total % 100:02d};{choix.lignes};\r\n")
        for i in range(choix.lignes):
            champs = personne(hasard, i)
            if choix.fautes and i % choix.fautes == choix.fautes - 1:
                champ, valeur = FAUTES[i // choix.fautes % len(FAUTES)]
                champs[10], champs[25] = "N", "004"  # a foreigner is spared some of the checks
                if champ == 12:
                    champs[12] = ""
                champs[champ - 1] = valeur
            fichier.write(";".join(champs) + ";\r\n")
    os.replace(chemin + ".part", chemin)


if __name__ == "__main__":
    main()
