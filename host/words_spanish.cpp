#include "host/words.h"

namespace orvendal {

const Words& SpanishWords() {
  static const Words words = {
      .accept = "Aceptar",
      .cancel = "Cancelar",
      .close = "Cerrar",
      .yes = "Sí",
      .no = "No",
      .cut = "Cortar",
      .copy = "Copiar",
      .paste = "Pegar",
      .select_all = "Seleccionar todo",
      .code = "Código",
      .description = "Descripción",
      .name = "Nombre",
      .branch = "Sucursal",
      .workstation = "Puesto",
      .shift = "Turno",
      .store = "Base de datos",
      .provider = "Proveedor",
      .product_search = "Búsqueda de Productos",
      .employee_picker = "Selección de Estilista",
      .supervisor_picker = "Selección de Supervisor",
      .by_code = "Por código",
      .by_description = "Por descripción",
      .search_for = "Buscar:",
      .found = "Encontrados: %1",
      .found_first = "Se muestran los primeros %1 de %2",
      .found_other_way = "%1: ninguno. %2: %3.",
      .workstation_panel = "Datos del Puesto",
      .reconnect = "Reconectar",
      .store_open = "La base de datos está abierta.",
      .store_opened_anew = "Se ha abierto de nuevo la base de datos.",
      .store_given_up = "La base de datos se ha cerrado: no es la que hace falta.",
      .session_change = "Cambio de Sesión",
      .folder_missing = "No existe la carpeta %1 de la base de datos.",
      .store_missing = "No existe la base de datos %1.",
      .store_locked = "Otro programa tiene bloqueada la base de datos %1. Inténtelo de nuevo más tarde.",
      .store_is_folder = "%1 es una carpeta y no una base de datos.",
      .store_no_database = "El fichero %1 no es una base de datos.",
      .store_damaged = "La base de datos %1 está dañada.",
      .store_read_only = "No se puede escribir en la base de datos %1.",
      .store_refused = "No hay permiso para abrir la base de datos %1.",
      .store_foreign = "La base de datos %1 no es de este programa: le falta la tabla %2.",
      .store_other = "No se puede abrir la base de datos %1: %2",
      .store_newer =
          "La base de datos %1 es de una versión más nueva (%2) que la que conoce este programa (%3). "
          "Actualice el programa; no se ha cambiado nada.",
      .store_version_unknown =
          "La base de datos %1 dice ser de la versión %2, que no existe (este programa conoce la %3). No se "
          "ha "
          "cambiado nada; elija otra base de datos.",
      .store_older =
          "La base de datos %1 es de una versión anterior (%2; este programa necesita la %3): le falta %4. "
          "No se ha cambiado nada. Para ponerla al día, haga una copia y ejecute en ella: %5",
      .store_lacks =
          "A la base de datos %1 le falta %2. No se ha cambiado nada. Haga una copia y añádalo, o elija otra "
          "base de datos: %3",
      .store_no_table =
          "En la base de datos %1, %2 no es una tabla. No se ha cambiado nada; elija otra base de datos.",
      .store_no_date =
          "En la base de datos %1, el campo %2 no está declarado como fecha (DATETIME). No se ha cambiado "
          "nada; corrija la tabla o elija otra base de datos.",
      .store_no_text =
          "En la base de datos %1, el campo %2 no está declarado como texto (VARCHAR), y un código como 007 "
          "no "
          "cabe en él tal cual. No se ha cambiado nada; corrija la tabla o elija otra base de datos.",
      .store_no_number =
          "En la base de datos %1, el campo %2 no está declarado como número con decimales (NUMERIC). No se "
          "ha "
          "cambiado nada; corrija la tabla o elija otra base de datos.",
      .store_narrow_field =
          "En la base de datos %1, el campo %2 admite menos caracteres (%3) de los que se guardan en él "
          "(%4). "
          "No se ha cambiado nada; ensánchelo o elija otra base de datos.",
      .store_generated_field =
          "En la base de datos %1, el campo %2 es calculado (GENERATED), lo que no puede ser en una tabla en "
          "la que se guarda. No se ha cambiado nada; corrija la tabla o elija otra base de datos.",
      .store_own_rule =
          "En la base de datos %1, la tabla %2 tiene una regla propia que puede detener un guardado cuando "
          "el "
          "día ya está borrado: %3. No se ha cambiado nada; quítela o elija otra base de datos.",
      .store_demanding_field =
          "En la base de datos %1, el campo %2 exige un valor que este programa no conoce. No se ha cambiado "
          "nada; dele un valor por defecto o permita que quede vacío.",
      .store_moved = "La base de datos %1 ya no está en su sitio. Devuélvala a él o reconecte con F1.",
      .store_full =
          "No queda sitio en el disco de la base de datos %1. Libere espacio y repita lo que hacía.",
      .store_disk_error =
          "El disco no deja leer o escribir la base de datos %1. Compruebe el disco o la red y repita lo que "
          "hacía.",
      .store_too_slow =
          "La base de datos ha tardado demasiado en responder y se ha interrumpido lo que hacía. Repítalo "
          "más tarde.",
      .store_not_allowed = "La base de datos no permite esa operación.",
      .text_not_understood =
          "No se entiende el texto cerca de «%2». Escríbalo sin comillas ni signos y repita lo que hacía.",
      .date_not_understood = "No se entiende una fecha. Corríjala y repita lo que hacía.",
      .table_missing =
          "A la base de datos le falta la tabla %2. Compruebe con F1 qué base de datos está abierta.",
      .field_missing =
          "A la base de datos le falta el campo %2. Compruebe con F1 qué base de datos está abierta.",
      .field_missing_somewhere =
          "A la base de datos le falta un campo. Compruebe con F1 qué base de datos está abierta.",
      .row_twice = "La base de datos ya tiene una fila igual y no admite otra.",
      .value_refused =
          "La base de datos no admite uno de los valores: es demasiado largo, o falta donde es obligatorio. "
          "Corríjalo y guarde otra vez.",
      .value_of_wrong_kind =
          "Un valor no es de la clase que admite su campo: un número o una fecha que no lo es. Corríjalo y "
          "repita lo que hacía.",
      .row_missing = "La base de datos no tiene la fila que se busca.",
      .connection_closed = "No hay conexión con la base de datos. Reconecte con F1.",
      .rows_closed =
          "Las filas de la base de datos ya están cerradas. Repita lo que hacía; si no basta, reconecte con "
          "F1.",
      .rows_open = "Las filas de la base de datos ya están abiertas. Repita lo que hacía.",
      .rows_fixed = "Esas filas de la base de datos solo se pueden leer.",
      .rows_without_positions = "Esas filas de la base de datos no tienen número.",
      .not_now = "La base de datos no puede hacer eso en este momento. Repita lo que hacía.",
      .wrong_argument = "Un dato no vale para lo que se pide.",
      .number_too_large = "Un número es demasiado grande. Corríjalo y repita lo que hacía.",
      .field_too_large =
          "El campo %2 de la base de datos contiene un número sin límite. Hay que corregirlo en la base de "
          "datos; "
          "hasta entonces esas filas no se pueden cargar.",
      .grid_too_long =
          "El recuento tiene más de las %2 filas que se pueden guardar. No se ha borrado ni guardado nada. "
          "Apunte las líneas nuevas, pulse Cancelar para cargar el día otra vez e introduzca menos.",
      .lines_not_whole =
          "No se han podido cargar todas las líneas del día. No se ha borrado ni guardado nada. Pulse "
          "Cancelar "
          "para cargar el día otra vez.",
      .value_empty = "Falta un valor que hace falta. Complételo en la base de datos y repita lo que hacía.",
      .object_missing =
          "Falta una parte del programa que debía estar preparada. Cierre la pantalla y ábrala otra vez.",
      .program_error = "Error interno del programa. Cierre la pantalla y ábrala otra vez.",
      .error = "Error %1: %2",
      .part_missing = "No se puede cargar %1. Debe estar en la misma carpeta que el programa.",
      .no_display = "No hay pantalla. Con --captura FICHERO.png se guarda una imagen sin ella.",
      .picture_not_written = "No se puede escribir la imagen %1.",
      .record_not_made =
          "No se puede hacer el fichero %1 para la grabación: %2. Elija un nombre nuevo en una carpeta en la "
          "que se pueda escribir.",
      .record_cut = "La grabación %1 se ha quedado a medias: %2.",
      .work_not_kept =
          "No se puede llevar nota de lo que se escribe en %1: %2. Se puede trabajar, pero no se podrá "
          "recuperar.",
      .unsaved_work_found =
          "El programa terminó sin que se guardaran líneas del recuento de hoy de la sucursal %1. Se "
          "escribió en ellas por última vez a las %2.",
      .day_changed_meanwhile =
          "Atención: desde entonces ese recuento ha cambiado en la base de datos. Si guarda las líneas "
          "recuperadas, sustituirán a las que hay en ella.",
      .bring_work_back =
          "¿Recuperar las líneas? Vuelven a la pantalla, sin guardar. Si responde No, quedan apartadas en "
          "%1.",
      .work_not_all_back =
          "No se ha podido recuperar todo. Revise las líneas. Lo que se hizo está entero en %1.",
      .unknown_option = "No existe la opción %1.",
      .unexpected_word = "Sobra la palabra %1.",
      .value_missing = "A la opción %1 le falta su valor.",
      .argument_missing = "A la orden %1 le falta su %2.",
      .bad_value = "La opción %1 no admite «%2»; vale %3.",
      .value_not_taken = "La opción %1 no lleva ningún valor.",
      .option_not_for = "La opción %1 no es de la orden %2.",
      .see_help = "La ayuda está en %1.",
      .unexpected_error = "Error inesperado: %1",
      .no_memory = "No hay memoria suficiente.",
      .output_lost = "No se puede escribir en la salida del programa.",
      .store_not_there =
          "No existe la base de datos %1. Compruebe el nombre; con --crear se hace una nueva, con una cadena "
          "de muestra.",
      .store_empty =
          "El fichero %1 está vacío. Compruebe el nombre; con --crear se llena con una cadena de muestra.",
      .current_folder_gone =
          "Ya no existe la carpeta actual: escriba la base de datos %1 con su ruta completa.",
      .store_in_use = "Base de datos: %1",
      .store_just_made = "Base de datos nueva: %1",
      .sample_chain = "Cadena de muestra: los datos son inventados.",
      .sample_title = "cadena de muestra",
      .help_purpose = "Abre la pantalla de existencias iniciales de una sucursal.",
      .help_usage = "Uso:",
      .help_options = "Opciones",
      .help_of_options = "[opciones]",
      .help_arguments = "Argumentos",
      .help_commands = "Órdenes",
      .help_branch = "sucursal; cuentan sus dos primeros caracteres (01)",
      .help_workstation = "puesto de trabajo (1)",
      .help_shift = "turno (1)",
      .help_language = "idioma de los textos: es, ca o en (el del sistema, o es)",
      .help_region = "cómo se escriben números y fechas: es-ES, ca-ES o en-US (es-ES)",
      .help_base = "tamaño de referencia en píxeles, o en twips como 15360x11520tw (1024x768)",
      .help_display = "abre una ventana de ese tamaño, en píxeles, como si fuera la pantalla entera",
      .help_store = "fichero SQLite con la base de datos, que ha de existir (%1)",
      .help_dialect = "proveedor que se imita: sqlserver o jet (sqlserver)",
      .help_picture = "sin ventana: guarda una imagen de la pantalla y escribe las líneas del día",
      .help_record = "graba toda la sesión, como guion, en un fichero nuevo",
      .help_script = "Ejecuta un guion sobre la pantalla, sin ventana, y escribe lo que muestra.",
      .help_create = "crea la base de datos de --db si no existe, con la cadena de muestra",
      .help_help = "muestra esta ayuda",
      .help_store_of_script = "fichero SQLite que el guion lee y cambia (una cadena de muestra en memoria)",
      .help_language_of_script = "idioma de los textos de la pantalla: es, ca o en (es)",
      .help_display_of_script = "tamaño de la pantalla del guion, en píxeles (1024x768)",
      .help_script_file = "guion que se ejecuta; docs/guion.md explica cómo se escribe",
      .help_first_run =
          "Sin --db se usa una base de datos propia, que se crea la primera vez con una cadena de muestra, "
          "de datos inventados.",
      .help_exit_codes =
          "Código de salida: 0, todo bien; 1, no se ha podido (el motivo queda en la salida de errores); 2, "
          "opciones mal escritas.",
      .help_exit_codes_of_script =
          "Código de salida: 0, el guion llegó al final; 1, no se cumplió un «espera»; 2, el guion no puede "
          "seguir o las opciones están mal escritas.",
      .value_branch = "SUC",
      .value_workstation = "PUESTO",
      .value_shift = "TURNO",
      .value_region = "REGIÓN",
      .value_size = "ANCHOxALTO",
      .value_file = "FICHERO",
      .value_picture = "FICHERO.png",
  };
  return words;
}

}  // namespace orvendal
