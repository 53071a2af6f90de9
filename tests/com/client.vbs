' A late-bound client of the module that is written as a script, with host objects written as classes of the script.
'   cscript client.vbs DRIVER     DRIVER: the program that operates the windows
Option Explicit

Dim failures : failures = 0
Sub Expect(what, wanted, found)
    If CStr(wanted) <> CStr(found) Then
        WScript.Echo "FAILED " & what & ": wanted '" & wanted & "', found '" & found & "'"
        failures = failures + 1
    End If
End Sub

' The company's table of terms, by ID. The host objects below apply the statements to it.
Dim rows : Set rows = CreateRows()
Function CreateRows()
    Set CreateRows = WScript.CreateObject("Scripting.Dictionary")
End Function
Dim nextId : nextId = 1
Dim log : log = ""
Dim syncState : syncState = 4
Dim companies : companies = 1

Function Between(text, before, after)
    Dim start : start = InStr(text, before) + Len(before)
    Between = Mid(text, start, InStr(start, text, after) - start)
End Function

Function RowXml(id)
    RowXml = "<Record><ID>" & id & "</ID><Terms>" & rows(id) & "</Terms><DueDays>30</DueDays></Record>"
End Function

Function Answer(sql)
    Dim key, xml, wanted
    wanted = 0
    If InStr(sql, "WHERE ID = ") Then wanted = CLng(Mid(sql, InStr(sql, "WHERE ID = ") + 11))
    For Each key In rows.Keys
        If wanted = 0 Or wanted = key Then xml = xml & RowXml(key)
    Next
    Set Answer = WScript.CreateObject("MSXML2.DOMDocument")
    Answer.loadXML "<Records>" & xml & "</Records>"
End Function

Class HostDatabase
    Public Function ExecuteRead(sql)
        log = log & "|" & sql
        Set ExecuteRead = Answer(sql)
    End Function
    Public Function ExecuteScaler(sql, field, other)
        If InStr(sql, "SyncState") Then
            ExecuteScaler = syncState
        ElseIf InStr(sql, "FROM Company") Then
            ExecuteScaler = companies
        Else
            ExecuteScaler = "7"
        End If
    End Function
    Public Function ExecuteNonQueryWithID(sql)
        log = log & "|" & sql
        rows.Add nextId, Between(sql, "VALUES('", "'")
        ExecuteNonQueryWithID = nextId
        nextId = nextId + 1
    End Function
    Public Function ExecuteNonQuery(sql)
        log = log & "|" & sql
        If InStr(sql, "UPDATE ProductVendors") Then
            ExecuteNonQuery = True
            Exit Function
        End If
        Dim id : id = CLng(Mid(sql, InStr(sql, "WHERE ID = ") + 11))
        If Left(sql, 6) = "UPDATE" Then rows(id) = Between(sql, "Terms = '", "'")
        If Left(sql, 6) = "DELETE" Then rows.Remove id
        ExecuteNonQuery = True
    End Function
    Public Property Get LastSQLErrorDescription
        LastSQLErrorDescription = ""
    End Property
End Class

Class HostCommon
    Public Function RecordExists(table, column, value, id)
        RecordExists = False
    End Function
    Public Sub LoadTaxGroups(combo)
        combo.AddItem "Nevada"
    End Sub
    Public Function GetCustomerName(id)
        GetCustomerName = "Customer " & id
    End Function
    Public Function GetProductNameFromID(id)
        GetProductNameFromID = "Product " & id
    End Function
End Class

' A connection whose statement for customer 7 changes no row.
Class HostConnection
    Public Function Execute(sql, changed)
        log = log & "|" & sql
        changed = 1
        If Right(sql, 2) = " 7" Then changed = 0
        Set Execute = Nothing
    End Function
End Class

Class HostSecurity
    Public Function CanDo(area, right)
        CanDo = True
    End Function
    Public Property Get UserId
        UserId = 3
    End Property
    Public Sub ReInitializeUser(user)
        log = log & "|USER " & user
    End Sub
End Class

Class SharedCode
    Public Property Get Database
        Set Database = New HostDatabase
    End Property
    Public Property Get Common
        Set Common = New HostCommon
    End Property
    Public Property Get Security
        Set Security = New HostSecurity
    End Property
    Public Property Get CurrentCompanyConn
        Set CurrentCompanyConn = New HostConnection
    End Property
    ' A function of a script takes a fixed number of arguments: here those of a question. A message has fewer and fails.
    Public Function ShowMessageStyle1(text, advice, buttons)
        log = log & "|" & text
        ShowMessageStyle1 = 6
    End Function
    Public Sub RecordEvent(text)
        log = log & "|EVENT " & text
    End Sub
    Public Function FixForSQLInsert(text)
        FixForSQLInsert = Replace(text, "'", "''")
    End Function
    Public Sub ShowAndLogErrorMessage(text, explanation, detail)
        log = log & "|ERROR " & text & " " & detail
    End Sub
End Class

Dim shell : Set shell = WScript.CreateObject("WScript.Shell")
Sub UserDoes(steps)
    shell.Run """" & WScript.Arguments(0) & """ " & steps, 0, False
End Sub

Dim library : Set library = WScript.CreateObject("tslnmaint5.Library")
Dim host : Set host = New SharedCode
library.Initialize host

Expect "complete", True, library.InitialSyncComplete()
syncState = 3
Expect "state 3", False, library.InitialSyncComplete
syncState = "4" : companies = 2
Expect "two companies", False, library.InitialSyncComplete()
companies = 1

rows.Add nextId, "Net 30" : nextId = nextId + 1
UserDoes """row:Terms"" ""press:Terms|&New..."" ""fill:New Terms|0|Net 45"" ""press:New Terms|OK"" " & _
    """gone:New Terms"" ""row:Terms"" ""press:Terms|&Close"""
Expect "closed by Close", True, library.ShowTerms()
Expect "row added", "Net 45", rows(2)
If InStr(log, "INSERT INTO Terms (Terms,DueDays,Discount,DiscountDays,Exported) VALUES('Net 45', 0, 0, 0, 0)") = 0 Then
    Expect "the statement", "INSERT ...", log
End If

Dim id : id = 2
UserDoes """fill:Edit Terms|0|Net 60"" ""press:Edit Terms|OK"""
Expect "saved", 2, library.ShowEditTerms(id)
Expect "row changed", "Net 60", rows(2)
UserDoes """press:Edit Terms|Cancel"""
Expect "cancelled", 0, library.ShowEditTerms("2")
UserDoes """close:Terms"""
Expect "closed by its close box", False, library.ShowTerms

UserDoes """tick:Bulk Change|&Clear the tax exemption number"" ""press:Bulk Change|OK"""
Expect "changed in bulk", False, library.ShowBulkChange(1, Array(5, 7, 9))
If InStr(log, "UPDATE Customers SET TaxExNumber = '' WHERE ID = 9") = 0 Then Expect "the last customer", "UPDATE ...", log
If InStr(log, "EVENT Customer [Customer 7] could not have its tax exemtion number cleared") = 0 Then
    Expect "the event", "Customer 7", log
End If
If InStr(log, "ERROR The last action could not be completed.") = 0 Then Expect "the failed message", "ERROR", log
log = ""
UserDoes """press:Tessaline|OK"""
Expect "products moved", False, library.MoveProductsToVendor(3, "5")
If InStr(log, "UPDATE ProductVendors SET VendorID = 5 WHERE VendorID = 3 AND IsDefault <> 0") = 0 Then
    Expect "the move", "UPDATE ...", log
End If

log = ""
UserDoes """press:Security Roles|&Close"""
library.ShowSecurityRoles
If InStr(log, "|USER 3") = 0 Then Expect "the user is read again", "USER 3", log
UserDoes """press:Option Defaults|&Close"""
library.ShowOptionDefaults 7
If InStr(log, "SELECT * FROM vwMaintenance_OptionDefaults WHERE ProductID = 7") = 0 Then
    Expect "the defaults", "SELECT ...", log
End If

On Error Resume Next
library.ShowEditTerms
Expect "missing argument", 449, Err.Number
Err.Clear
library.ShowTerms 1
Expect "surplus argument", 450, Err.Number
Err.Clear
library.ShowEditTerms "abc"
Expect "wrong type", 13, Err.Number
Err.Clear
library.CanDeleteDiscountGroup 1
Expect "private", 438, Err.Number
Err.Clear
On Error GoTo 0

library.PreTerminate
Set library = Nothing
If InStr(log, "ERROR") Then Expect "no errors told", "", log
WScript.Echo "client: " & failures & " failure(s)"
WScript.Quit failures
