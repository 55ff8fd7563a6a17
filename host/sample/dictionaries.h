#pragma once

#include "host/language.h"
#include "platform/data/recordset.h"

namespace orvendal {

/// The captions of the screen in one language, as three recordsets of one row whose fields are the keys.
struct Dictionaries {
  RecordsetRef general;
  RecordsetRef acciones;
  RecordsetRef pantallas;
};

/// New ones, each standing on its row.
Dictionaries MakeDictionaries(Language language);

/// The same as recordsets of a store, for hosts whose dictionaries go where only the store's own are known:
/// each is the one record of a statement without a table.
Dictionaries SelectDictionaries(RecordsetFactory& recordsets, const ConnectionRef& connection,
                                Language language);

}  // namespace orvendal
