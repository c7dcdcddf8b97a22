#pragma once

class Base;
class Dialogue;
class Enregistrement;

/// The control of the annual declaration of a header before its export: the number of every line against the
/// identity of the employee, the nationality of foreigners, the share of nationals with a valid account, the
/// count of numbers against the header. The first fault is told and stops; an employee without a number who
/// is tolerated is told of.
/// @return whether the export may go on
/// @throws ErreurConversion for a line whose date of birth or, without a number, whose date of entry is none
bool CtrlDas(Base &base, const Enregistrement &entete, Dialogue &dialogue);
