' A host that is a script, for the whole road of a count: it knows nothing but two names. Hands outside type
' while it waits. Its last line says that it came to its end: the script host itself ends well whatever happens.
Option Explicit
Dim sesion, componente, sucursal, puesto, turno, vuelta, fallos, filas, espera

fallos = 0
Sub Comprueba(que, obtenido, esperado)
  If obtenido <> esperado Then
    fallos = fallos + 1
    WScript.Echo que & ": " & obtenido & ", expected " & esperado
  End If
End Sub

' One value of the store, read as any client of ADO does.
Function Lee(sentencia)
  Dim lectura
  Set lectura = CreateObject("ADODB.Recordset")
  lectura.Open sentencia, sesion.Connection, 3, 1, -1
  Lee = lectura.Fields(0).Value
  lectura.Close
End Function

Set sesion = CreateObject("DllTrevano.DatosClase")
Set componente = CreateObject("DllOrvendal.ClassOrvendal")
Comprueba "session's interface", TypeName(sesion), "_SampleSession"
sesion.Language = "en"
sesion.Workstation = "7"

On Error Resume Next

sesion.Language = "xx"
Comprueba "no such language, number", Err.Number, 380
Comprueba "no such language, source", Err.Source, "DllTrevano"
Err.Clear
Comprueba "language that stays", sesion.Language, "en"

sesion.OpenStore "Z:\ninguna\carpeta\tienda.db"
Comprueba "no folder, number", Err.Number, -2147467259
Comprueba "no folder, text", Err.Description, "The folder Z:\ninguna\carpeta of the database does not exist."
Err.Clear

sesion.OpenConnection "Provider=Otro.1;Data Source=x"
Comprueba "no such provider", Err.Number, 3706
Err.Clear

sesion.OpenStore WScript.Arguments(0)
Comprueba "store, error", Err.Number, 0
Err.Clear

' The screen refuses to load, with the provider's own number and text; afterwards it loads as if nothing had been.
sucursal = "02"
puesto = "7"
turno = "2"
sesion.Connection.Execute "ALTER TABLE Sucursales RENAME TO Otra"
Comprueba "renaming", Err.Number, 0
Err.Clear
vuelta = componente.Orvendal(sesion, sucursal, puesto, turno)
Comprueba "failed load, number", Err.Number, -2147217865
Comprueba "failed load, source", Err.Source, "DllOrvendal"
Comprueba "failed load, text", Err.Description, "Invalid object name 'Sucursales'."
Err.Clear
Comprueba "screen after a failed load", sesion.ScreenIsOpen, False
sesion.Connection.Execute "ALTER TABLE Otra RENAME TO Sucursales"

vuelta = componente.Orvendal(sesion, sucursal, puesto, turno)
Comprueba "call, error", Err.Number & Err.Description, "0"
Comprueba "call, return value", vuelta, False
Comprueba "screen", sesion.ScreenIsOpen, True
Comprueba "branch that comes back", sucursal, "02"

' A second call brings the same screen back.
vuelta = componente.Orvendal(sesion, sucursal, puesto, turno)
Comprueba "second call, error", Err.Number, 0
Comprueba "second call, return value", vuelta, False

espera = 0
Do While sesion.ScreenIsOpen And espera < 1200
  sesion.Pump 50
  espera = espera + 1
Loop
Comprueba "screen that was closed", sesion.ScreenIsOpen, False

Comprueba "rows of the count", Lee("SELECT COUNT(*) FROM HistOrvendalcial WHERE IdSucursal = '02' AND IdProducto = 'CHA057' AND StockActual = 33 AND ModificadoPor = '02'"), 1
Comprueba "stock after the count", Lee("SELECT Stock FROM ProdSucStock WHERE IdSucursal = '02' AND IdProducto = 'CHA057'"), 33
Comprueba "journal", Lee("SELECT COUNT(*) FROM Diario"), 1
Comprueba "journal's session", Lee("SELECT Sesion FROM Diario"), "Sucursal=02;Puesto=7;Turno=1"
Comprueba "reading, error", Err.Number & Err.Description, "0"

Set componente = Nothing
Set sesion = Nothing
If fallos = 0 Then WScript.Echo "all as expected"
