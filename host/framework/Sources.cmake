target_sources(OrvoHostKit PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/Calculator.h ${CMAKE_CURRENT_LIST_DIR}/Calculator.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CalculatorReading.h ${CMAKE_CURRENT_LIST_DIR}/CalculatorReading.cpp
    ${CMAKE_CURRENT_LIST_DIR}/CalculatorUnits.h ${CMAKE_CURRENT_LIST_DIR}/CalculatorUnits.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Debug.h ${CMAKE_CURRENT_LIST_DIR}/Debug.cpp
    ${CMAKE_CURRENT_LIST_DIR}/DefaultServices.h ${CMAKE_CURRENT_LIST_DIR}/DefaultServices.cpp
    ${CMAKE_CURRENT_LIST_DIR}/EventBus.h ${CMAKE_CURRENT_LIST_DIR}/EventBus.cpp
    ${CMAKE_CURRENT_LIST_DIR}/EventBusRegistry.h ${CMAKE_CURRENT_LIST_DIR}/EventBusRegistry.cpp
    ${CMAKE_CURRENT_LIST_DIR}/EventConnection.h ${CMAKE_CURRENT_LIST_DIR}/EventConnection.cpp
    ${CMAKE_CURRENT_LIST_DIR}/HostApplication.h ${CMAKE_CURRENT_LIST_DIR}/HostApplication.cpp
    ${CMAKE_CURRENT_LIST_DIR}/IdleEventSource.h ${CMAKE_CURRENT_LIST_DIR}/IdleEventSource.cpp
    ${CMAKE_CURRENT_LIST_DIR}/INeedEventbus.h
    ${CMAKE_CURRENT_LIST_DIR}/INeedServiceCatalog.h
    ${CMAKE_CURRENT_LIST_DIR}/IServiceClient.h
    ${CMAKE_CURRENT_LIST_DIR}/IStringLoader.h
    ${CMAKE_CURRENT_LIST_DIR}/OnIdleEvent.h
    ${CMAKE_CURRENT_LIST_DIR}/ServiceCatalog.h ${CMAKE_CURRENT_LIST_DIR}/ServiceCatalog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/StringReference.h
    ${CMAKE_CURRENT_LIST_DIR}/TranslationStringLoader.h ${CMAKE_CURRENT_LIST_DIR}/TranslationStringLoader.cpp
    ${CMAKE_CURRENT_LIST_DIR}/XMLHandler.h ${CMAKE_CURRENT_LIST_DIR}/XMLHandler.cpp
)
