#include "host/words.h"

namespace orvendal {

const Words& CatalanWords() {
  static const Words words = {
      .accept = "Acceptar",
      .cancel = "Cancel·lar",
      .close = "Tancar",
      .yes = "Sí",
      .no = "No",
      .cut = "Retalla",
      .copy = "Copia",
      .paste = "Enganxa",
      .select_all = "Selecciona-ho tot",
      .code = "Codi",
      .description = "Descripció",
      .name = "Nom",
      .branch = "Sucursal",
      .workstation = "Lloc",
      .shift = "Torn",
      .store = "Base de dades",
      .provider = "Proveïdor",
      .product_search = "Cerca de Productes",
      .employee_picker = "Selecció d’Estilista",
      .supervisor_picker = "Selecció de Supervisor",
      .by_code = "Per codi",
      .by_description = "Per descripció",
      .search_for = "Cercar:",
      .found = "Trobats: %1",
      .found_first = "Es mostren els primers %1 de %2",
      .found_other_way = "%1: cap. %2: %3.",
      .workstation_panel = "Dades del Lloc",
      .reconnect = "Reconnectar",
      .store_open = "La base de dades és oberta.",
      .store_opened_anew = "S’ha tornat a obrir la base de dades.",
      .store_given_up = "S’ha tancat la base de dades: no és la que cal.",
      .session_change = "Canvi de Sessió",
      .folder_missing = "No existeix la carpeta %1 de la base de dades.",
      .store_missing = "No existeix la base de dades %1.",
      .store_locked = "Un altre programa té bloquejada la base de dades %1. Torneu-ho a provar més tard.",
      .store_is_folder = "%1 és una carpeta i no una base de dades.",
      .store_no_database = "El fitxer %1 no és una base de dades.",
      .store_damaged = "La base de dades %1 està malmesa.",
      .store_read_only = "No es pot escriure a la base de dades %1.",
      .store_refused = "No hi ha permís per obrir la base de dades %1.",
      .store_foreign = "La base de dades %1 no és d’aquest programa: li falta la taula %2.",
      .store_other = "No es pot obrir la base de dades %1: %2",
      .store_newer =
          "La base de dades %1 és d’una versió més nova (%2) que la que coneix aquest programa (%3). "
          "Actualitzeu el programa; no s’ha canviat res.",
      .store_version_unknown =
          "La base de dades %1 diu que és de la versió %2, que no existeix (aquest programa coneix la %3). "
          "No "
          "s’ha canviat res; trieu una altra base de dades.",
      .store_older =
          "La base de dades %1 és d’una versió anterior (%2; aquest programa necessita la %3): li falta %4. "
          "No s’ha canviat res. Per posar-la al dia, feu-ne una còpia i executeu-hi: %5",
      .store_lacks =
          "A la base de dades %1 li falta %2. No s’ha canviat res. Feu-ne una còpia i afegiu-ho, o trieu una "
          "altra base de dades: %3",
      .store_no_table =
          "A la base de dades %1, %2 no és una taula. No s’ha canviat res; trieu una altra base de dades.",
      .store_no_date =
          "A la base de dades %1, el camp %2 no està declarat com a data (DATETIME). No s’ha canviat res; "
          "corregiu la taula o trieu una altra base de dades.",
      .store_no_text =
          "A la base de dades %1, el camp %2 no està declarat com a text (VARCHAR), i un codi com 007 no "
          "s’hi "
          "desa tal com és. No s’ha canviat res; corregiu la taula o trieu una altra base de dades.",
      .store_no_number =
          "A la base de dades %1, el camp %2 no està declarat com a nombre amb decimals (NUMERIC). No s’ha "
          "canviat res; corregiu la taula o trieu una altra base de dades.",
      .store_narrow_field =
          "A la base de dades %1, el camp %2 admet menys caràcters (%3) dels que s’hi desen (%4). No s’ha "
          "canviat res; eixampleu-lo o trieu una altra base de dades.",
      .store_generated_field =
          "A la base de dades %1, el camp %2 és calculat (GENERATED), cosa que no pot ser en una taula on es "
          "desa. No s’ha canviat res; corregiu la taula o trieu una altra base de dades.",
      .store_own_rule =
          "A la base de dades %1, la taula %2 té una regla pròpia que pot aturar un desament quan el dia ja "
          "està esborrat: %3. No s’ha canviat res; traieu-la o trieu una altra base de dades.",
      .store_demanding_field =
          "A la base de dades %1, el camp %2 exigeix un valor que aquest programa no coneix. No s’ha canviat "
          "res; doneu-li un valor per defecte o permeteu que quedi buit.",
      .store_moved = "La base de dades %1 ja no és al seu lloc. Torneu-l’hi o reconnecteu amb F1.",
      .store_full = "No queda lloc al disc de la base de dades %1. Allibereu espai i repetiu el que fèieu.",
      .store_disk_error =
          "El disc no deixa llegir o escriure la base de dades %1. Comproveu el disc o la xarxa i repetiu el "
          "que fèieu.",
      .store_too_slow =
          "La base de dades ha trigat massa a respondre i s’ha interromput el que fèieu. Repetiu-ho més "
          "tard.",
      .store_not_allowed = "La base de dades no permet aquesta operació.",
      .text_not_understood =
          "No s’entén el text a prop de «%2». Escriviu-lo sense cometes ni signes i repetiu el que fèieu.",
      .date_not_understood = "No s’entén una data. Corregiu-la i repetiu el que fèieu.",
      .table_missing =
          "A la base de dades li falta la taula %2. Comproveu amb F1 quina base de dades és oberta.",
      .field_missing =
          "A la base de dades li falta el camp %2. Comproveu amb F1 quina base de dades és oberta.",
      .field_missing_somewhere =
          "A la base de dades li falta un camp. Comproveu amb F1 quina base de dades és oberta.",
      .row_twice = "La base de dades ja té una fila igual i no n’admet cap altra.",
      .value_refused =
          "La base de dades no admet un dels valors: és massa llarg, o falta on és obligatori. Corregiu-lo i "
          "deseu una altra vegada.",
      .value_of_wrong_kind =
          "Un valor no és de la classe que admet el seu camp: un nombre o una data que no ho és. Corregiu-lo "
          "i repetiu el que fèieu.",
      .row_missing = "La base de dades no té la fila que es busca.",
      .connection_closed = "No hi ha connexió amb la base de dades. Reconnecteu amb F1.",
      .rows_closed =
          "Les files de la base de dades ja són tancades. Repetiu el que fèieu; si no n’hi ha prou, "
          "reconnecteu amb F1.",
      .rows_open = "Les files de la base de dades ja són obertes. Repetiu el que fèieu.",
      .rows_fixed = "Aquestes files de la base de dades només es poden llegir.",
      .rows_without_positions = "Aquestes files de la base de dades no tenen número.",
      .not_now = "La base de dades no pot fer això en aquest moment. Repetiu el que fèieu.",
      .wrong_argument = "Una dada no val per al que es demana.",
      .number_too_large = "Un nombre és massa gran. Corregiu-lo i repetiu el que fèieu.",
      .field_too_large =
          "El camp %2 de la base de dades conté un nombre sense límit. S’ha de corregir a la base de dades; "
          "fins "
          "aleshores aquestes files no es poden carregar.",
      .grid_too_long =
          "El recompte té més de les %2 files que es poden desar. No s’ha esborrat ni desat res. Apunteu les "
          "línies noves, premeu Cancel·lar per carregar el dia una altra vegada i introduïu-ne menys.",
      .lines_not_whole =
          "No s’han pogut carregar totes les línies del dia. No s’ha esborrat ni desat res. Premeu "
          "Cancel·lar per "
          "carregar el dia una altra vegada.",
      .value_empty = "Falta un valor necessari. Completeu-lo a la base de dades i repetiu el que fèieu.",
      .object_missing =
          "Falta una part del programa que havia d’estar preparada. Tanqueu la pantalla i torneu-la a obrir.",
      .program_error = "Error intern del programa. Tanqueu la pantalla i torneu-la a obrir.",
      .error = "Error %1: %2",
      .part_missing = "No es pot carregar %1. Ha de ser a la mateixa carpeta que el programa.",
      .no_display = "No hi ha pantalla. Amb --captura FITXER.png es desa una imatge sense pantalla.",
      .picture_not_written = "No es pot escriure la imatge %1.",
      .record_not_made =
          "No es pot fer el fitxer %1 per a l’enregistrament: %2. Trieu un nom nou en una carpeta on es "
          "pugui escriure.",
      .record_cut = "L’enregistrament %1 s’ha quedat a mitges: %2.",
      .work_not_kept =
          "No es pot portar nota del que s’escriu a %1: %2. Es pot treballar, però no es podrà recuperar.",
      .unsaved_work_found =
          "El programa va acabar sense que es desessin línies del recompte d’avui de la sucursal %1. S’hi va "
          "escriure per última vegada a les %2.",
      .day_changed_meanwhile =
          "Atenció: des d’aleshores aquest recompte ha canviat a la base de dades. Si deseu les línies "
          "recuperades, substituiran les que hi ha.",
      .bring_work_back =
          "Voleu recuperar les línies? Tornen a la pantalla, sense desar. Si responeu No, queden apartades a "
          "%1.",
      .work_not_all_back =
          "No s’ha pogut recuperar tot. Reviseu les línies. El que es va fer és sencer a %1.",
      .unknown_option = "No existeix l’opció %1.",
      .unexpected_word = "Sobra la paraula %1.",
      .value_missing = "A l’opció %1 li falta el valor.",
      .argument_missing = "A l’ordre %1 li falta el %2.",
      .bad_value = "L’opció %1 no admet «%2»; val %3.",
      .value_not_taken = "L’opció %1 no porta cap valor.",
      .option_not_for = "L’opció %1 no és de l’ordre %2.",
      .see_help = "L’ajuda és a %1.",
      .unexpected_error = "Error inesperat: %1",
      .no_memory = "No hi ha prou memòria.",
      .output_lost = "No es pot escriure a la sortida del programa.",
      .store_not_there =
          "No existeix la base de dades %1. Comproveu el nom; amb --crear se’n fa una de nova, amb una "
          "cadena de mostra.",
      .store_empty = "El fitxer %1 és buit. Comproveu el nom; amb --crear s’omple amb una cadena de mostra.",
      .current_folder_gone =
          "Ja no existeix la carpeta actual: escriviu la base de dades %1 amb la ruta completa.",
      .store_in_use = "Base de dades: %1",
      .store_just_made = "Base de dades nova: %1",
      .sample_chain = "Cadena de mostra: les dades són inventades.",
      .sample_title = "cadena de mostra",
      .help_purpose = "Obre la pantalla d’existències inicials d’una sucursal.",
      .help_usage = "Ús:",
      .help_options = "Opcions",
      .help_of_options = "[opcions]",
      .help_arguments = "Arguments",
      .help_commands = "Ordres",
      .help_branch = "sucursal; compten els dos primers caràcters (01)",
      .help_workstation = "lloc de treball (1)",
      .help_shift = "torn (1)",
      .help_language = "idioma dels textos: es, ca o en (el del sistema, o es)",
      .help_region = "com s’escriuen números i dates: es-ES, ca-ES o en-US (es-ES)",
      .help_base = "mida de referència en píxels, o en twips com 15360x11520tw (1024x768)",
      .help_display = "obre una finestra d’aquesta mida, en píxels, com si fos la pantalla sencera",
      .help_store = "fitxer SQLite amb la base de dades, que ha d’existir (%1)",
      .help_dialect = "proveïdor que s’imita: sqlserver o jet (sqlserver)",
      .help_picture = "sense finestra: desa una imatge de la pantalla i escriu les línies del dia",
      .help_record = "enregistra tota la sessió, com a guió, en un fitxer nou",
      .help_script = "Executa un guió sobre la pantalla, sense finestra, i escriu el que mostra.",
      .help_create = "crea la base de dades de --db si no existeix, amb la cadena de mostra",
      .help_help = "mostra aquesta ajuda",
      .help_store_of_script = "fitxer SQLite que el guió llegeix i canvia (una cadena de mostra en memòria)",
      .help_language_of_script = "idioma dels textos de la pantalla: es, ca o en (es)",
      .help_display_of_script = "mida de la pantalla del guió, en píxels (1024x768)",
      .help_script_file = "guió que s’executa; docs/guion.md explica com s’escriu",
      .help_first_run =
          "Sense --db es fa servir una base de dades pròpia, que es crea el primer cop amb una cadena de "
          "mostra, de dades inventades.",
      .help_exit_codes =
          "Codi de sortida: 0, tot bé; 1, no s’ha pogut (el motiu queda a la sortida d’errors); 2, opcions "
          "mal escrites.",
      .help_exit_codes_of_script =
          "Codi de sortida: 0, el guió ha arribat al final; 1, no s’ha complert un «espera»; 2, el guió no "
          "pot seguir o les opcions estan mal escrites.",
      .value_branch = "SUC",
      .value_workstation = "LLOC",
      .value_shift = "TORN",
      .value_region = "REGIÓ",
      .value_size = "AMPLExALT",
      .value_file = "FITXER",
      .value_picture = "FITXER.png",
  };
  return words;
}

}  // namespace orvendal
