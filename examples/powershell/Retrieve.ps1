# Retrieves the ticket of a recorded host session, late bound, and prints what an agent looks at first.
# Run it with: powershell -File Retrieve.ps1 <session file>
param([Parameter(Mandatory = $true)][string]$Path)
$ErrorActionPreference = 'Stop'

$session = New-Object -ComObject QorlHostToolkit.RecordedSession
try {
    $session.Load($Path)
} catch {
    Write-Output "No session: $($_.Exception.Message)"
    exit 1
}

$tst = New-Object -ComObject QorlTST.TST
$code = $tst.RetrieveCurrentTst($session)
if ($code -notin 0, 1005 -or $tst.Text -eq '') {
    Write-Output "No ticket: result $code"
    exit 1
}
if ($code -eq 1005) { Write-Output 'Parts of the ticket were not understood' }

$header = $tst.TSTHeader
Write-Output "TST $($header.ElementNumber) of $($header.OfficeId), changed $($header.LastModifDate)"
foreach ($name in $tst.NameElements) {
    Write-Output "$($name.LastName)/$($name.Initial) $($name.PassengerType)"
}
for ($i = 1; $i -le $tst.AirSegments.Count; ++$i) {
    $air = $tst.AirSegments.Item($i)  # counted from 1; square brackets do not work on a collection here
    Write-Output "$($air.AirLine)$($air.FlightNumber) from $($air.BoardPoint) $($air.DepartureDate)"
}
Write-Output "Fare $($tst.FareBaseLineCurrencyCode) $($tst.FareBaseLineBaseAmount)"
foreach ($tax in $tst.TaxElements) {
    Write-Output "Tax $($tax.ISOType) $($tax.CurrencyCode) $($tax.Amount)"
}
Write-Output "Total $($tst.TotalCurrencyCode) $($tst.TotalCollectionAmount)"
Write-Output $tst.FareCalculation.Text
