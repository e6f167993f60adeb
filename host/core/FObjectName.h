#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <functional>

/**
 * Names of objects, variables and commands: a letter of any script or an underscore, then letters, digits and
 * underscores, and none of the words that the script language keeps for itself.
 */

enum class FReservedWord { None, If, Else, While, For, True, False, Null };

/** Which reserved word `word` is, if any. Case counts: `NULL` is one, `null` a name. */
MERIX_EXPORT FReservedWord reservedWord(QStringView word);

/** Length of the longest name or reserved word that begins at `from`; 0 if none does. */
MERIX_EXPORT int nameLength(QStringView text, int from);

/**
 * `text` as a legal name: characters that aren't allowed become `_` (`out.dat` gives `out_dat`), a leading digit and a
 * reserved word get a `_` before them. An empty text stays empty, a legal name as it is.
 */
MERIX_EXPORT QString legalName(const QString& text);

/** Names of objects as a user types them. */
class MERIX_EXPORT FObjectName {
 public:
    /** Makes a text a legal name, as `legalName`. */
    static void correctName(QString& name) { name = legalName(name); }
    static bool isLegal(const QString& name);
    /** Whether the text is a legal name or becomes one when more is typed, for the validator of a field. */
    static bool canBecomeLegal(const QString& text) { return nameLength(text, 0) == text.size(); }
};

/** `base` for 0, else `base` with the suffix that the number has in a series of equal names: _01 … _09, _10, _11 … */
MERIX_EXPORT QString numberedName(const QString& base, int number);

/**
 * `base`, or if that is taken the first free one of base_01 … base_09, base_10, base_11 …
 * `taken` is asked once for each name and has to become false some time.
 */
MERIX_EXPORT QString uniqueName(const QString& base, const std::function<bool(const QString&)>& taken);
