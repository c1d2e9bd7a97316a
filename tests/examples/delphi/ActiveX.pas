{ Stands in for the system's unit of this name, so that the example can be compiled where there is none. }
unit ActiveX;

interface

function CoInitialize(Reserved: Pointer): LongInt;
procedure CoUninitialize;

implementation

function CoInitialize(Reserved: Pointer): LongInt;
begin
  CoInitialize := 0;
end;

procedure CoUninitialize;
begin
end;

end.
