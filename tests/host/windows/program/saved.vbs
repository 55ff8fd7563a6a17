' Reads what a program saved, as any client of ADO does. Its last line says that it came to its end.
Option Explicit
Dim almacen, fallos, diario

fallos = 0
Sub Comprueba(que, sentencia, esperado)
  Dim lectura
  Set lectura = CreateObject("ADODB.Recordset")
  lectura.Open sentencia, almacen, 3, 1, -1
  If lectura.Fields(0).Value <> esperado Then
    fallos = fallos + 1
    WScript.Echo que & ": " & lectura.Fields(0).Value & ", expected " & esperado
  End If
  lectura.Close
End Sub

Set almacen = CreateObject("ADODB.Connection")
almacen.Open "Provider=SQLOLEDB.1;Data Source=" & WScript.Arguments(0)
Comprueba "rows of the count", "SELECT COUNT(*) FROM HistOrvendalcial WHERE IdSucursal = '02' AND IdProducto = 'CHA057' AND StockActual = 33 AND ModificadoPor = '02'", 1
Comprueba "stock after the count", "SELECT Stock FROM ProdSucStock WHERE IdSucursal = '02' AND IdProducto = 'CHA057'", 33
diario = "Sucursal=02;Puesto=7;Turno=2"
If WScript.Arguments.Count > 1 Then diario = WScript.Arguments(1)
Comprueba "journal's session", "SELECT Sesion FROM Diario", diario
almacen.Close
If fallos = 0 Then WScript.Echo "all as expected"
