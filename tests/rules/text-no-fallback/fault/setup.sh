rm texts/en.json
