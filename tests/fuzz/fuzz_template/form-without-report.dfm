object F: TForm
end
