{ Stands in for the system's unit of this name, so that the example can be compiled where there is none. }
unit ComObj;

interface

function CreateOleObject(const Name: string): OleVariant;

implementation

function CreateOleObject(const Name: string): OleVariant;
begin
  CreateOleObject := Name;
end;

end.
