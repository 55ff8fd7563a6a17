' A script that asks for ADO's objects by their names and gets the embedded store. Its last line says that it came
' to its end: the script host itself ends well whatever happens.
Option Explicit
Dim fallos, proveedor

fallos = 0
Sub Espera(que, obtenido, esperado)
  If obtenido <> esperado Then
    fallos = fallos + 1
    WScript.Echo proveedor & ", " & que & ": " & obtenido & ", expected " & esperado
  End If
End Sub

Sub EsperaError(que, numero, texto)
  Dim obtenido, descripcion
  obtenido = Err.Number
  descripcion = Err.Description
  Err.Clear
  Espera que & ", number", obtenido, numero
  Espera que & ", text", descripcion, texto
End Sub

Sub Recorre(archivo)
  Dim cn, rs, campo, valor, nombres, cuantas
  Set cn = CreateObject("ADODB.Connection")
  cn.Open "Provider=" & proveedor & ";Data Source=" & archivo
  Espera "provider", cn.Provider, proveedor
  Espera "state", cn.State, 1
  cn.Execute "CREATE TABLE Sucursales (Sucursal VARCHAR(2) PRIMARY KEY, Nombre VARCHAR(20), Alta DATETIME)"
  cn.Execute "INSERT INTO Sucursales (Sucursal, Nombre) VALUES ('01', 'Norte')", cuantas
  Espera "rows of a command", cuantas, 1

  Set rs = CreateObject("ADODB.Recordset")
  rs.Open "SELECT * FROM Sucursales", cn, 3, 3
  Espera "count", rs.RecordCount, 1
  Espera "field by name", rs("nombre"), "Norte"
  Espera "field by number", rs(0), "01"
  Espera "value", rs.Fields("Nombre").Value, "Norte"
  Espera "null", IsNull(rs("Alta").Value), True
  nombres = ""
  For Each campo In rs.Fields
    nombres = nombres & campo.Name & " "
  Next
  Espera "names", nombres, "Sucursal Nombre Alta "
  rs.AddNew
  rs("Sucursal") = "02"
  rs.Fields("Nombre").Value = "Sur"
  rs("Alta") = DateSerial(2026, 11, 16)
  Espera "edit mode", rs.EditMode, 2
  rs.Update
  rs.Close
  Espera "closed", rs.State, 0

  Set rs = cn.Execute("SELECT Nombre, Alta FROM Sucursales ORDER BY Sucursal")
  nombres = ""
  Do Until rs.EOF
    nombres = nombres & rs("Nombre") & " "
    If Not IsNull(rs("Alta").Value) Then
      Espera "type of a date", TypeName(rs("Alta").Value), "Date"
      Espera "date", Year(rs("Alta").Value) * 10000 + Month(rs("Alta").Value) * 100 + Day(rs("Alta").Value), 20261116
    End If
    rs.MoveNext
  Loop
  Espera "all rows", nombres, "Norte Sur "

  On Error Resume Next
  rs.MoveNext
  EsperaError "past the end", 3021, "Either BOF or EOF is True, or the current record has been deleted. " & _
    "Requested operation requires a current record."
  valor = rs.Fields("Ciudad").Value
  EsperaError "no such field", 3265, _
    "Item cannot be found in the collection corresponding to the requested name or ordinal."
  rs.Sort = "Nombre"
  EsperaError "not provided", 3251, "Object or provider is not capable of performing requested operation."
  rs.Abrir
  Espera "no such member", Err.Number, 438
  Err.Clear
  cn.Execute "SELECT * FROM Clientes"
  Espera "no such table", Err.Number, &H80040E37
  Espera "its source", Err.Source, "OrvendalStore"
  Err.Clear
  rs.Close
  cn.Execute "DROP TABLE Sucursales"
  cn.Close
  Espera "the end", Err.Number, 0
End Sub

proveedor = "SQLOLEDB.1"
Recorre WScript.Arguments(0)
proveedor = "Microsoft.Jet.OLEDB.4.0"
Recorre WScript.Arguments(0)
If fallos = 0 Then WScript.Echo "all as expected"
